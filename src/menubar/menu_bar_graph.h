#pragma once

#include "platform/status_bar.h"

#include <vector>

namespace tarvo {

/// The two-line chart of the combined item: memory in purple below the processor in blue, 34 x 18 points.
/// The histories are percentages, oldest first; the newest stands at the right edge and `maxSamples` of them
/// span the width. A history of fewer than two values is not drawn. `maxSamples` is at least 2.
LineDrawing renderMenuBarGraph(const std::vector<double>& cpuHistory, const std::vector<double>& memHistory,
                               int maxSamples);

} // namespace tarvo
