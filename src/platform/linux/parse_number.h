#pragma once

#include <charconv>
#include <optional>
#include <string_view>
#include <system_error>

namespace tarvo::linux_platform {

namespace detail {

template <typename Number, typename... Form>
std::optional<Number> parseWhole(std::string_view text, Form... form) {
    Number value{};
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value, form...);
    if (error != std::errc() || stop != end) return std::nullopt;
    return value;
}

} // namespace detail

/// A number that is the whole text, in the C locale's form; absent when anything else is there or it does not
/// fit. Integers are decimal; a plus sign, blanks and line feeds are not accepted.
template <typename Number>
std::optional<Number> parseNumber(std::string_view text) {
    return detail::parseWhole<Number>(text);
}

/// An unsigned hexadecimal number that is the whole text, with or without "0x" before it.
template <typename Number>
std::optional<Number> parseHexadecimal(std::string_view text) {
    if (text.starts_with("0x") || text.starts_with("0X")) text.remove_prefix(2);
    if (text.starts_with('-')) return std::nullopt;
    return detail::parseWhole<Number>(text, 16);
}

} // namespace tarvo::linux_platform
