#include "update/version_order.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarvo {
namespace {

std::optional<std::int64_t> integer(std::string_view piece) {
    if (piece.size() > 1 && piece[0] == '+' && piece[1] != '-') piece.remove_prefix(1);
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(piece.data(), piece.data() + piece.size(), value);
    if (error != std::errc() || end != piece.data() + piece.size()) return std::nullopt;
    return value;
}

std::vector<std::int64_t> components(std::string_view version) {
    std::vector<std::int64_t> numbers;
    while (!version.empty()) {
        const std::size_t length = std::min(version.find('.'), version.size());
        if (const auto number = integer(version.substr(0, length))) numbers.push_back(*number);
        version.remove_prefix(std::min(length + 1, version.size()));
    }
    return numbers;
}

} // namespace

bool isNewer(std::string_view a, std::string_view b) {
    auto left = components(a);
    auto right = components(b);
    const std::size_t length = std::max(left.size(), right.size());
    left.resize(length);
    right.resize(length);
    return left > right;
}

} // namespace tarvo
