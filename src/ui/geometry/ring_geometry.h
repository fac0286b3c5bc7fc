#pragma once

#include <string>

namespace tarvo::ui {

inline constexpr double ringDiameter = 52;
inline constexpr double ringLineWidth = 6;

/// Part of the circle that a percentage covers, from 0.001 (a dot) to 1. The arc starts at the top and runs
/// clockwise.
double ringFraction(double percent);

/// "42%", to the nearest integer; not clamped.
std::string ringText(double percent);

} // namespace tarvo::ui
