#pragma once

#include "platform/clock.h"

#include <optional>

namespace tarvo {

/// One minute of the persisted history.
struct HistorySample {
    WallTime date;
    double cpu = 0;                ///< busy share, percent 0 to 100
    double mem = 0;                ///< memory in use, percent 0 to 100
    std::optional<double> cpuTemp; ///< degrees Celsius; absent when the sensors gave none
    bool operator==(const HistorySample&) const = default;
};

} // namespace tarvo
