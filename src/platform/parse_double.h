#pragma once

#include <optional>
#include <string_view>

namespace tarvo {

/// The whole text as a decimal number in the C locale's form, whatever the locale of the program; infinity
/// and "not a number" are none.
std::optional<double> parseDouble(std::string_view text);

/// The same by means that every standard library has: where from_chars reads no floating numbers yet, it is
/// what parseDouble does.
std::optional<double> parseDoubleByStream(std::string_view text);

} // namespace tarvo
