#include "ui/geometry/sparkline_points.h"

#include <algorithm>

namespace tarvo::ui {

std::vector<DrawPoint> normalizedPoints(const std::vector<double>& values, int maxSamples, DrawSize size) {
    if (values.size() < 2 || maxSamples < 2) return {};
    const double step = size.width / (maxSamples - 1);
    const double first = static_cast<double>(maxSamples) - static_cast<double>(values.size());
    std::vector<DrawPoint> points;
    points.reserve(values.size());
    for (std::size_t index = 0; index < values.size(); ++index) {
        const double share = values[index] >= 100 ? 1 : std::max(values[index], 0.0) / 100;
        points.push_back({step * (first + static_cast<double>(index)), size.height - size.height * share});
    }
    return points;
}

} // namespace tarvo::ui
