#include "ui/geometry/ring_geometry.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>

namespace tarvo::ui {

double ringFraction(double percent) {
    return std::max(std::min(percent / 100, 1.0), 0.001);
}

// Adding 0.0 keeps a rounded -0.4 from reading "-0%".
std::string ringText(double percent) {
    return fmt::format("{:.0f}%", std::round(percent) + 0.0);
}

} // namespace tarvo::ui
