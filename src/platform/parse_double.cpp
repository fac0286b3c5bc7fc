#include "platform/parse_double.h"

#include <charconv>
#include <cmath>
#include <locale>
#include <sstream>
#include <string>
#include <system_error>
#include <version>

namespace tarvo {

#if defined(__cpp_lib_to_chars)
std::optional<double> parseDouble(std::string_view text) {
    double value = 0;
    const auto* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    return error == std::errc() && stop == end && std::isfinite(value) ? std::optional(value) : std::nullopt;
}
#else
std::optional<double> parseDouble(std::string_view text) {
    return parseDoubleByStream(text);
}
#endif

std::optional<double> parseDoubleByStream(std::string_view text) {
    // Streams also take a leading plus sign and hexadecimal numbers.
    const bool isDecimal = text.find_first_not_of("0123456789.eE+-") == std::string_view::npos;
    if (!isDecimal || text.starts_with('+')) return std::nullopt;
    std::istringstream stream{std::string(text)};
    stream.imbue(std::locale::classic());
    double value = 0;
    const bool isWhole = stream >> value && stream.peek() == std::istringstream::traits_type::eof();
    return isWhole && std::isfinite(value) ? std::optional(value) : std::nullopt;
}

} // namespace tarvo
