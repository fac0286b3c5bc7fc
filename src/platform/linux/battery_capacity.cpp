#include "platform/linux/battery_capacity.h"

#include <algorithm>
#include <cmath>

namespace tarvo::linux_platform {
namespace {

using Figure = std::optional<std::int64_t> PowerSupply::*;

/// The figures of one battery that are told in energy and in charge.
struct Pair {
    Figure energy;
    Figure charge;
};
constexpr Pair now{&PowerSupply::energyNow, &PowerSupply::chargeNow};
constexpr Pair full{&PowerSupply::energyFull, &PowerSupply::chargeFull};
constexpr Pair design{&PowerSupply::energyFullDesign, &PowerSupply::chargeFullDesign};

bool tells(const PowerSupply& battery, Figure first, Figure second) {
    return battery.*first && battery.*second;
}

std::optional<double> volts(const PowerSupply& battery) {
    const auto microvolts =
        battery.voltageMinDesign.value_or(0) > 0 ? battery.voltageMinDesign : battery.voltageNow;
    return microvolts && *microvolts > 0 ? std::optional(static_cast<double>(*microvolts) / 1e6)
                                         : std::nullopt;
}

/// Two figures of one battery.
struct Amounts {
    double first;
    double second;
};

std::optional<Amounts> charges(const PowerSupply& battery, Pair first, Pair second) {
    if (!tells(battery, first.charge, second.charge)) return std::nullopt;
    return Amounts{static_cast<double>(*(battery.*first.charge)),
                   static_cast<double>(*(battery.*second.charge))};
}

/// Energies as they are told, else charges times the battery's voltage.
std::optional<Amounts> energies(const PowerSupply& battery, Pair first, Pair second) {
    if (tells(battery, first.energy, second.energy)) {
        return Amounts{static_cast<double>(*(battery.*first.energy)),
                       static_cast<double>(*(battery.*second.energy))};
    }
    const auto charge = charges(battery, first, second);
    const auto voltage = volts(battery);
    if (!charge || !voltage) return std::nullopt;
    return Amounts{charge->first * *voltage, charge->second * *voltage};
}

using OneBattery = std::optional<Amounts> (*)(const PowerSupply& battery, Pair first, Pair second);

std::optional<Amounts> sum(const std::vector<PowerSupply>& batteries, OneBattery amounts, Pair first,
                           Pair second) {
    Amounts total{0, 0};
    for (const auto& battery : batteries) {
        const auto one = amounts(battery, first, second);
        if (!one) return std::nullopt;
        total.first += one->first;
        total.second += one->second;
    }
    return batteries.empty() ? std::nullopt : std::optional(total);
}

/// A single battery is told in its own unit. Several are added up as energy, as charge only where a voltage
/// lacks.
std::optional<Amounts> sumInOneUnit(const std::vector<PowerSupply>& batteries, Pair first, Pair second) {
    if (batteries.size() == 1 && !tells(batteries[0], first.energy, second.energy)) {
        return charges(batteries[0], first, second);
    }
    const auto energy = sum(batteries, energies, first, second);
    return energy ? energy : sum(batteries, charges, first, second);
}

std::optional<BatteryCapacity> usable(const std::optional<Amounts>& amounts) {
    constexpr double smallest = 1000; // 1 mWh or 1 mAh
    constexpr double largest = 1e15;  // a thousand MWh: such a figure is a driver's mistake
    if (!amounts || amounts->first < 0 || amounts->first > largest) return std::nullopt;
    if (amounts->second < smallest || amounts->second > largest) return std::nullopt;
    return BatteryCapacity{std::min(amounts->first, amounts->second), amounts->second};
}

} // namespace

std::optional<BatteryCapacity> sumCapacity(const std::vector<PowerSupply>& batteries) {
    return usable(sumInOneUnit(batteries, now, full));
}

std::optional<BatteryCapacity> sumEnergy(const std::vector<PowerSupply>& batteries) {
    return usable(sum(batteries, energies, now, full));
}

std::optional<BatteryCapacity> sumCharge(const std::vector<PowerSupply>& batteries) {
    return usable(sum(batteries, charges, now, full));
}

std::optional<std::int64_t> meanPercentage(const std::vector<PowerSupply>& batteries) {
    double total = 0;
    int counted = 0;
    for (const auto& battery : batteries) {
        const auto capacity = sumCapacity({battery});
        const bool tellsPercentage = battery.capacity && *battery.capacity >= 0 && *battery.capacity <= 100;
        if (!tellsPercentage && !capacity) continue;
        total +=
            tellsPercentage ? static_cast<double>(*battery.capacity) : capacity->now / capacity->full * 100;
        ++counted;
    }
    return counted > 0 ? std::optional<std::int64_t>(std::llround(total / counted)) : std::nullopt;
}

std::optional<BatteryWear> sumWear(const std::vector<PowerSupply>& batteries) {
    for (const auto& battery : batteries) {
        const auto one = sumInOneUnit({battery}, design, full);
        if (!one || one->first <= 0) return std::nullopt;
    }
    const auto total = sumInOneUnit(batteries, design, full);
    return total ? std::optional(BatteryWear{total->first, total->second}) : std::nullopt;
}

} // namespace tarvo::linux_platform
