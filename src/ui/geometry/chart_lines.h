#pragma once

#include "history/history_sample.h"
#include "ui/geometry/point.h"

#include <span>
#include <vector>

namespace tarvo::ui {

/// The span of time that a chart shows: from its first to its last sample, and at least a minute.
struct ChartDomain {
    WallTime from;
    WallTime to;
    /// Place within the domain, 0 to 1.
    double position(WallTime time) const;
};

/// The samples may stand in any order; there is at least one.
ChartDomain chartDomain(std::span<const HistorySample> samples);

/// Which reading of a sample a line shows.
using Reading = double HistorySample::*;

/// The line of one reading over the domain in a plot of the given size, 0 % at the bottom and 100 % at the
/// top, reduced to `columnsPerUnit` columns a unit of width without losing a peak. The samples are in order
/// of time.
std::vector<DrawPoint> chartLine(std::span<const HistorySample> samples, Reading reading,
                                 const ChartDomain& domain, DrawSize plot, double columnsPerUnit);

/// Puts the samples in order of time where the clock was set back between them.
void sortByDate(std::vector<HistorySample>& samples);

} // namespace tarvo::ui
