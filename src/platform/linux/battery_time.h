#pragma once

#include "platform/linux/power_supply.h"
#include "platform/linux/rate_mean.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// Minutes; at most one of the two is present.
struct BatteryTime {
    std::optional<std::int64_t> toEmpty;
    std::optional<std::int64_t> toFull;
};

/// Remaining times from what the batteries hold and the mean rate of the last readings.
class BatteryTimeEstimate {
public:
    /// Takes the readings of now into the mean.
    BatteryTime update(const std::vector<PowerSupply>& batteries);

private:
    std::optional<std::int64_t> minutes(const std::vector<PowerSupply>& batteries, bool discharging);

    RateMean rates_;
};

/// uAh for uA where every battery tells only these, else uWh for uW: charge is never divided by power.
/// Absent when what the batteries hold or the rate of those of the status is not told.
struct BatteryFlow {
    double now = 0;
    double full = 0;
    double rate = 0; ///< 0 when the firmware does not know
    bool isCharge = false;
};
std::optional<BatteryFlow> batteryFlow(const std::vector<PowerSupply>& batteries, std::string_view status);

} // namespace tarvo::linux_platform
