#pragma once

#include <string_view>

namespace tarvo::ui {

/// Orders texts with the numbers in them by their values: "10.0.0.9:80" stands before "10.0.0.10:80". Below,
/// equal to or above 0.
int naturalOrder(std::string_view first, std::string_view second);

} // namespace tarvo::ui
