#include "ui/geometry/bar_geometry.h"

#include "ui/style/metrics.h"

#include <algorithm>

namespace tarvo::ui {

double capacityBarWidth(double width, double fraction) {
    return std::max(width * std::min(std::max(fraction, 0.0), 1.0), metrics::barMinimum);
}

double temperatureFraction(double celsius, double scaleMin, double scaleMax) {
    if (scaleMax <= scaleMin) return 0;
    return std::clamp((celsius - scaleMin) / (scaleMax - scaleMin), 0.0, 1.0);
}

double temperatureBarWidth(double width, double celsius, double scaleMin, double scaleMax) {
    return capacityBarWidth(width, temperatureFraction(celsius, scaleMin, scaleMax));
}

} // namespace tarvo::ui
