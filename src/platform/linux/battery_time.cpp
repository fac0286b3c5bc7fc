#include "platform/linux/battery_time.h"

#include "platform/linux/battery_capacity.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {
namespace {

constexpr double longestMinutes = 6000;

bool anyIs(const std::vector<PowerSupply>& batteries, std::string_view status) {
    return std::any_of(batteries.begin(), batteries.end(),
                       [status](const auto& battery) { return battery.status == status; });
}

double magnitude(std::int64_t value) {
    return std::abs(static_cast<double>(value));
}

bool tellsOnlyChargeAndCurrent(const PowerSupply& battery) {
    return battery.chargeNow && battery.currentNow && !battery.energyNow && !battery.powerNow;
}

/// uW; absent when not told.
std::optional<double> power(const PowerSupply& battery) {
    if (battery.powerNow) return magnitude(*battery.powerNow);
    if (!battery.currentNow || !battery.voltageNow) return std::nullopt;
    return magnitude(*battery.currentNow) * static_cast<double>(*battery.voltageNow) / 1e6;
}

std::optional<double> current(const PowerSupply& battery) {
    return battery.currentNow ? std::optional(magnitude(*battery.currentNow)) : std::nullopt;
}

template <typename RateOf>
std::optional<double> sumRates(const std::vector<PowerSupply>& batteries, std::string_view status,
                               RateOf&& rateOf) {
    double sum = 0;
    for (const auto& battery : batteries) {
        if (battery.status != status) continue;
        const auto rate = rateOf(battery);
        if (!rate) return std::nullopt;
        sum += *rate;
    }
    return sum;
}

/// Tells rates apart that must not be averaged together.
std::string kindOf(const std::vector<PowerSupply>& batteries, std::string_view status, bool isCharge) {
    std::string kind(status);
    kind += isCharge ? " charge" : " energy";
    for (const auto& battery : batteries)
        kind += " " + battery.name;
    return kind;
}

/// Truncated; absent when nothing flows and when it would be unbelievably long.
std::optional<std::int64_t> wholeMinutes(double amount, std::optional<double> rate) {
    if (!rate) return std::nullopt;
    const auto minutes = 60 * amount / *rate;
    return minutes <= longestMinutes ? std::optional(static_cast<std::int64_t>(minutes)) : std::nullopt;
}

} // namespace

std::optional<BatteryFlow> batteryFlow(const std::vector<PowerSupply>& batteries, std::string_view status) {
    const bool isCharge = std::all_of(batteries.begin(), batteries.end(), tellsOnlyChargeAndCurrent);
    const auto capacity = isCharge ? sumCharge(batteries) : sumEnergy(batteries);
    const auto rate = isCharge ? sumRates(batteries, status, current) : sumRates(batteries, status, power);
    if (!capacity || !rate) return std::nullopt;
    return BatteryFlow{capacity->now, capacity->full, *rate, isCharge};
}

BatteryTime BatteryTimeEstimate::update(const std::vector<PowerSupply>& batteries) {
    const bool charging = anyIs(batteries, "Charging");
    const bool discharging = !charging && anyIs(batteries, "Discharging");
    if (charging) return {std::nullopt, minutes(batteries, false)};
    if (discharging) return {minutes(batteries, true), std::nullopt};
    rates_.add("none", 0);
    return {};
}

std::optional<std::int64_t> BatteryTimeEstimate::minutes(const std::vector<PowerSupply>& batteries,
                                                         bool discharging) {
    const std::string_view status = discharging ? "Discharging" : "Charging";
    const auto flow = batteryFlow(batteries, status);
    if (flow) rates_.add(kindOf(batteries, status, flow->isCharge), flow->rate);
    if (discharging && batteries.size() == 1 && batteries[0].timeToEmptyNow.value_or(0) > 0) {
        return wholeMinutes(static_cast<double>(*batteries[0].timeToEmptyNow) / 60, 60);
    }
    if (!flow) return std::nullopt;
    return wholeMinutes(discharging ? flow->now : flow->full - flow->now, rates_.mean());
}

} // namespace tarvo::linux_platform
