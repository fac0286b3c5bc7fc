#pragma once

#include "platform/linux/battery_time.h"
#include "platform/linux/power_supply.h"
#include "platform/property_dictionary.h"

#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// All batteries of the machine as one.
struct BatteryDescription {
    PropertyDictionary source; ///< what a power source says: "Current Capacity" in mWh, mAh or percent, ...
    PropertyDictionary registryEntry; ///< its wear: "CycleCount", "DesignCapacity", "AppleRawMaxCapacity"
};

/// Describes readings of the power supplies that follow one another. For one thread.
class BatteryDescriber {
public:
    /// Absent when there is no battery or none tells its charge.
    std::optional<BatteryDescription> describe(const std::vector<PowerSupply>& supplies);

private:
    BatteryTimeEstimate time_;
};

/// Whether a battery is there that tells nothing, as happens while the firmware is busy.
bool isFirmwareBusy(const std::vector<PowerSupply>& supplies);

} // namespace tarvo::linux_platform
