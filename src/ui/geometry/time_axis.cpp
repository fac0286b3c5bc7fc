#include "ui/geometry/time_axis.h"

namespace tarvo::ui {
namespace {

using std::chrono::seconds;

constexpr std::int64_t mostMarks = 64;

seconds sinceEpoch(WallTime time) {
    return std::chrono::floor<seconds>(time.time_since_epoch());
}

WallTime atSeconds(seconds time) {
    return WallTime{std::chrono::duration_cast<WallTime::duration>(time)};
}

// The moment at which the local clock shows `local`; in the hour that a clock change skips or repeats, a
// moment near it.
WallTime fromLocal(seconds local, const UTCOffset& offset) {
    const seconds guess = offset(atSeconds(local));
    return atSeconds(local - offset(atSeconds(local - guess)));
}

seconds firstMultiple(seconds from, seconds step) {
    const auto count = from.count() / step.count() - (from.count() % step.count() < 0 ? 1 : 0);
    const seconds below{count * step.count()};
    return below < from ? below + step : below;
}

} // namespace

std::vector<WallTime> axisMarks(AxisScale scale, WallTime from, WallTime to, const UTCOffset& offset) {
    if (to < from) return {};
    const seconds span = sinceEpoch(to) - sinceEpoch(from);
    seconds step = scale.step;
    step *= 1 + span / step / mostMarks;
    std::vector<WallTime> marks;
    const seconds end = sinceEpoch(to) + offset(to);
    for (seconds local = firstMultiple(sinceEpoch(from) + offset(from), step); local <= end; local += step) {
        const WallTime mark = fromLocal(local, offset);
        if (mark >= from && mark <= to) marks.push_back(mark);
    }
    return marks;
}

int percentStep(double plotHeight) {
    return plotHeight >= 88 ? 25 : 50;
}

} // namespace tarvo::ui
