#pragma once

#include "platform/linux/power_supply.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// What all batteries of the machine hold together, in uWh or in uAh.
struct BatteryCapacity {
    double now = 0; ///< at most full
    double full = 0;
};

/// The sums over all batteries: charge for a single battery that tells only that, energy otherwise. Absent
/// when one battery tells neither, or full is less than a thousandth of an hour: then only the percentage is
/// known.
std::optional<BatteryCapacity> sumCapacity(const std::vector<PowerSupply>& batteries);

/// The same in uWh, where every battery tells energy or charge and voltage.
std::optional<BatteryCapacity> sumEnergy(const std::vector<PowerSupply>& batteries);

/// The same in uAh, where every battery tells charge, whatever their number.
std::optional<BatteryCapacity> sumCharge(const std::vector<PowerSupply>& batteries);

/// Mean charge in percent, of the batteries that tell any.
std::optional<std::int64_t> meanPercentage(const std::vector<PowerSupply>& batteries);

/// Full charge when new and today, in one unit. Absent when a battery lacks one of them or was designed for
/// nothing.
struct BatteryWear {
    double design = 0;
    double full = 0;
};
std::optional<BatteryWear> sumWear(const std::vector<PowerSupply>& batteries);

} // namespace tarvo::linux_platform
