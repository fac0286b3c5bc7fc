#pragma once

#include "platform/clock.h"

#include <algorithm>
#include <cstdint>

namespace tarvo {

/// Units per second that a counter advanced. The difference wraps: a counter that was reset gives a very
/// large rate once, never a negative one. The elapsed time is taken as at least a millisecond.
inline double counterRate(std::uint64_t current, std::uint64_t previous, Seconds elapsed) {
    return static_cast<double>(current - previous) / std::max(elapsed, Seconds{0.001}).count();
}

} // namespace tarvo
