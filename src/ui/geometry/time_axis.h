#pragma once

#include "platform/clock.h"

#include <chrono>
#include <functional>
#include <vector>

namespace tarvo::ui {

/// What stands under a mark of the time axis.
enum class AxisLabel { hour, narrowWeekday, dayAndMonth };

/// Distance of the marks and how they are labelled.
struct AxisScale {
    std::chrono::hours step;
    AxisLabel label;
    bool operator==(const AxisScale&) const = default;
};

inline constexpr AxisScale sixHourScale{std::chrono::hours{6}, AxisLabel::hour};
inline constexpr AxisScale dayScale{std::chrono::hours{24}, AxisLabel::narrowWeekday};
inline constexpr AxisScale twoDayScale{std::chrono::hours{48}, AxisLabel::dayAndMonth};

/// How far local time is ahead of UTC at a moment.
using UTCOffset = std::function<std::chrono::seconds(WallTime)>;

/// The marks within [from, to]: moments at which the local clock shows a multiple of the step, counted from a
/// fixed day, so that marks stay where they are while the range moves on. Wider apart where there would be
/// more than 64.
std::vector<WallTime> axisMarks(AxisScale scale, WallTime from, WallTime to, const UTCOffset& offset);

/// Distance of the percentage marks for a plot of this height: 25 where there is room, else 50.
int percentStep(double plotHeight);

} // namespace tarvo::ui
