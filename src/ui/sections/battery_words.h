#pragma once

#include "core/stats_snapshot.h"
#include "localization/localization_manager.h"
#include "platform/system_family.h"

#include <string>

namespace tarvo::ui {

/// A row that tells how long the battery lasts or takes.
struct BatteryTime {
    std::string label;
    std::string value;
    bool operator==(const BatteryTime&) const = default;
};

std::string batteryMissingText(const LocalizationManager& loc);
/// "charging", "plugged in" or "on battery".
std::string sectionBatteryState(const BatteryInfo& battery, const LocalizationManager& loc);
/// The same for the module's panel: "Charged", "Charging", "Plugged in" or "On battery".
std::string panelBatteryState(const BatteryInfo& battery, const LocalizationManager& loc);
/// "To full" while it charges, else "Remaining"; a dash while the time is not known.
BatteryTime batteryTimeRow(const BatteryInfo& battery, const LocalizationManager& loc);
/// Who decides how far the battery is charged.
std::string chargeLimitNote(SystemFamily family, const LocalizationManager& loc);

} // namespace tarvo::ui
