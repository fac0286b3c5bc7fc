#pragma once

#include "platform/parse_double.h"

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>
#include <type_traits>

/// The few cuts that the parsers of tool text share.
namespace tarvo {

/// Calls `take` with each line that is not empty until it answers false.
template <typename Take>
void forEachLine(std::string_view text, Take&& take) {
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto line = text.substr(0, end);
        if (!line.empty() && !take(line)) return;
        if (end == std::string_view::npos) return;
        text.remove_prefix(end + 1);
    }
}

/// Without blanks (spaces and tabs) at both ends.
inline std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

inline std::string_view withoutLeadingSpaces(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    return first == std::string_view::npos ? std::string_view{} : text.substr(first);
}

/// Takes the next field off the text, fields being parted by runs of spaces; empty when there is none.
inline std::string_view takeField(std::string_view& text) {
    text = withoutLeadingSpaces(text);
    const auto field = text.substr(0, text.find(' '));
    text.remove_prefix(field.size());
    return field;
}

/// The whole text as a decimal number in the C locale's form; infinity and "not a number" are none.
template <typename Number>
std::optional<Number> wholeNumber(std::string_view text) {
    if constexpr (std::is_same_v<Number, double>) {
        return parseDouble(text);
    } else {
        Number value{};
        const auto* const end = text.data() + text.size();
        const auto [stop, error] = std::from_chars(text.data(), end, value);
        return error == std::errc() && stop == end ? std::optional(value) : std::nullopt;
    }
}

} // namespace tarvo
