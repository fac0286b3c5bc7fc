#include "platform/linux/battery_describer.h"

#include "platform/linux/battery_capacity.h"

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tarvo::linux_platform {
namespace {

using Supplies = std::vector<PowerSupply>;

constexpr double nearlyFull = 0.99;

Supplies select(const Supplies& supplies, bool (*wanted)(const PowerSupply& supply)) {
    Supplies selected;
    std::copy_if(supplies.begin(), supplies.end(), std::back_inserter(selected), wanted);
    return selected;
}

bool isOnline(const PowerSupply& supply) {
    return supply.online == 1 || supply.online == 2;
}

bool isMains(const PowerSupply& supply) {
    return supply.type == "Mains";
}

std::int64_t count(const Supplies& batteries, std::string_view status) {
    return std::count_if(batteries.begin(), batteries.end(),
                         [status](const auto& battery) { return battery.status == status; });
}

/// A supply by cable may be online while it feeds a device; a battery that discharges gives that away.
bool isOnACPower(const Supplies& batteries, const Supplies& chargers) {
    if (std::any_of(chargers.begin(), chargers.end(), isMains)) {
        return std::any_of(chargers.begin(), chargers.end(),
                           [](const auto& charger) { return isMains(charger) && isOnline(charger); });
    }
    const bool powered = chargers.empty() || std::any_of(chargers.begin(), chargers.end(), isOnline);
    return powered && count(batteries, "Discharging") == 0;
}

bool isCharged(const Supplies& batteries, const Supplies& chargers, std::int64_t current, std::int64_t full) {
    if (count(batteries, "Full") == std::ssize(batteries)) return true;
    const bool rests = count(batteries, "Charging") == 0 && count(batteries, "Discharging") == 0;
    return rests && std::any_of(chargers.begin(), chargers.end(), isOnline) &&
           static_cast<double>(current) >= nearlyFull * static_cast<double>(full);
}

/// Thousandths: mWh for uWh.
std::int64_t milli(double micro) {
    return std::llround(micro / 1000);
}

struct Charge {
    std::int64_t current;
    std::int64_t full;
};

std::optional<Charge> chargeOf(const Supplies& batteries) {
    if (const auto capacity = sumCapacity(batteries))
        return Charge{milli(capacity->now), milli(capacity->full)};
    const auto percentage = meanPercentage(batteries);
    return percentage ? std::optional(Charge{*percentage, 100}) : std::nullopt;
}

PropertyDictionary registryEntry(const Supplies& batteries) {
    PropertyDictionary entry;
    std::int64_t cycles = 0;
    for (const auto& battery : batteries)
        cycles = std::max(cycles, battery.cycleCount.value_or(0));
    if (cycles > 0) entry.set("CycleCount", cycles);
    if (const auto wear = sumWear(batteries)) {
        entry.set("DesignCapacity", milli(wear->design));
        entry.set("AppleRawMaxCapacity", milli(wear->full));
    }
    return entry;
}

} // namespace

std::optional<BatteryDescription> BatteryDescriber::describe(const Supplies& supplies) {
    const auto batteries = select(supplies, isSystemBattery);
    const auto chargers = select(supplies, isCharger);
    const auto time = time_.update(batteries);
    const auto charge = chargeOf(batteries);
    if (!charge) return std::nullopt;
    BatteryDescription description;
    auto& source = description.source;
    source.set("Current Capacity", charge->current);
    source.set("Max Capacity", charge->full);
    source.set("Is Charging", count(batteries, "Charging") > 0);
    source.set("Is Charged", isCharged(batteries, chargers, charge->current, charge->full));
    source.set("Power Source State",
               std::string(isOnACPower(batteries, chargers) ? "AC Power" : "Battery Power"));
    if (time.toEmpty) source.set("Time to Empty", *time.toEmpty);
    if (time.toFull) source.set("Time to Full Charge", *time.toFull);
    description.registryEntry = registryEntry(batteries);
    return description;
}

bool isFirmwareBusy(const Supplies& supplies) {
    return std::any_of(supplies.begin(), supplies.end(), [](const auto& supply) {
        return isSystemBattery(supply) && !meanPercentage({supply});
    });
}

} // namespace tarvo::linux_platform
