#pragma once

#include "platform/clock.h"

#include <algorithm>

namespace tarvo {

/// The moment as the program holds it. WallTime counts nanoseconds and reaches from 1677 to 2262: a text may
/// name a date outside, which becomes the earliest or latest whole second inside.
inline WallTime clampedWallTime(std::chrono::sys_seconds moment) {
    constexpr auto earliest = std::chrono::ceil<std::chrono::seconds>(WallTime::min());
    constexpr auto latest = std::chrono::floor<std::chrono::seconds>(WallTime::max());
    return std::clamp(moment, earliest, latest);
}

} // namespace tarvo
