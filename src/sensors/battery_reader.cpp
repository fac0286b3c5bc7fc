#include "sensors/battery_reader.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tarvo {
namespace {

/// Rounded half away from zero.
std::int64_t percentOf(std::int64_t part, std::int64_t whole) {
    return std::llround(static_cast<double>(part) / static_cast<double>(whole) * 100);
}

std::optional<std::int64_t> minutes(const PropertyDictionary& description, std::string_view key) {
    const auto value = description.integer(key);
    return value && *value >= 1 ? value : std::nullopt;
}

constexpr auto cycles = "CycleCount";
constexpr auto designCapacity = "DesignCapacity";
constexpr auto presentCapacity = "AppleRawMaxCapacity";
constexpr std::array<std::string_view, 3> wearProperties{cycles, designCapacity, presentCapacity};

void addWear(BatteryInfo& info, const PropertyDictionary& entry) {
    info.cycleCount = entry.integer(cycles);
    const auto design = entry.integer(designCapacity);
    const auto present = entry.integer(presentCapacity);
    if (design && present && *design >= 1) {
        info.healthPercent = std::min<std::int64_t>(percentOf(*present, *design), 100);
    }
}

} // namespace

std::optional<BatteryInfo> readBatteryInfo(PowerSources& powerSources, IORegistry& registry) {
    const auto sources = powerSources.descriptions();
    if (!sources || sources->empty() || !sources->front()) return std::nullopt;
    const auto& description = *sources->front();
    const auto current = description.integer("Current Capacity");
    if (!current) return std::nullopt;
    const auto full = description.integer("Max Capacity").value_or(100);

    BatteryInfo info;
    info.percentage = full < 1 ? *current : percentOf(*current, full);
    info.isCharging = description.boolean("Is Charging").value_or(false);
    info.isFullyCharged = description.boolean("Is Charged").value_or(false);
    info.isPluggedIn = description.string("Power Source State") == "AC Power";
    info.timeToEmptyMinutes = minutes(description, "Time to Empty");
    info.timeToFullMinutes = minutes(description, "Time to Full Charge");

    if (const auto entry = registry.properties("AppleSmartBattery", wearProperties)) addWear(info, *entry);
    return info;
}

} // namespace tarvo
