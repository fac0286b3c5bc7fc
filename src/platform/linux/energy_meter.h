#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <optional>

namespace tarvo::linux_platform {

/// Power from two readings of a counter of energy that starts anew at its range.
/// Documentation/power/powercap/powercap.rst of the kernel.
class EnergyMeter {
public:
    /// `range` in uJ: where the counter starts anew; 0 when unknown.
    explicit EnergyMeter(std::uint64_t range) : range_(range) {}

    /// Watts since the reading before. Absent for the first one, for one at the same moment, for one so late
    /// that the counter may have started anew more than once, and when it went back without a known range.
    std::optional<double> watts(std::uint64_t microjoules, SteadyTime now);

private:
    struct Reading {
        std::uint64_t microjoules;
        SteadyTime at;
    };

    std::uint64_t range_;
    std::optional<Reading> previous_;
};

} // namespace tarvo::linux_platform
