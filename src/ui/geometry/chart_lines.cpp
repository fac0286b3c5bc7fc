#include "ui/geometry/chart_lines.h"

#include "ui/geometry/column_reducer.h"

#include <algorithm>
#include <chrono>

namespace tarvo::ui {
namespace {

bool isEarlier(const HistorySample& first, const HistorySample& second) {
    return first.date < second.date;
}

} // namespace

double ChartDomain::position(WallTime time) const {
    return Seconds(time - from).count() / Seconds(to - from).count();
}

ChartDomain chartDomain(std::span<const HistorySample> samples) {
    const auto [first, last] = std::minmax_element(samples.begin(), samples.end(), isEarlier);
    return {std::min<WallTime>(first->date, last->date - std::chrono::minutes(1)), last->date};
}

std::vector<DrawPoint> chartLine(std::span<const HistorySample> samples, Reading reading,
                                 const ChartDomain& domain, DrawSize plot, double columnsPerUnit) {
    const double columns = plot.width * columnsPerUnit;
    ColumnReducer reducer(columns * 4);
    for (const HistorySample& sample : samples) {
        const double share = std::clamp(sample.*reading, 0.0, 100.0) / 100;
        reducer.add({domain.position(sample.date) * columns, plot.height - plot.height * share});
    }
    auto points = reducer.take();
    for (DrawPoint& point : points)
        point.x /= columnsPerUnit;
    return points;
}

void sortByDate(std::vector<HistorySample>& samples) {
    if (!std::is_sorted(samples.begin(), samples.end(), isEarlier)) {
        std::stable_sort(samples.begin(), samples.end(), isEarlier);
    }
}

} // namespace tarvo::ui
