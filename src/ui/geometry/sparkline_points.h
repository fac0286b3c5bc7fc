#pragma once

#include "ui/geometry/point.h"

#include <vector>

namespace tarvo::ui {

/// The line through percentages in a frame of the given size, oldest first; the newest value stands on the
/// right edge, a series shorter than `maxSamples` starts part-way across and the oldest values of a longer
/// one lie left of the frame. The scale is fixed to 0 to 100. Empty with fewer than two values or samples.
std::vector<DrawPoint> normalizedPoints(const std::vector<double>& values, int maxSamples, DrawSize size);

} // namespace tarvo::ui
