#pragma once

#include "core/stats_snapshot.h"
#include "localization/localization_manager.h"
#include "ui/style/color.h"

#include <string>
#include <string_view>

namespace tarvo::ui {

/// The battery drawn with about its level, or with a bolt while it charges.
std::string_view batterySymbol(const BatteryInfo& battery);
/// Red from 20 % down, orange from 40, green above.
Color batteryColor(const BatteryInfo& battery);

/// "charged", "charging", "plugged in" or "on battery".
std::string batteryState(const BatteryInfo& battery, const LocalizationManager& loc);
/// "2:15 remaining", "45 min to full", or nothing while it is not known.
std::string batteryTime(const BatteryInfo& battery, const LocalizationManager& loc);
/// "cycles: 312 · health: 91%"; what is not known is left out.
std::string batteryWear(const BatteryInfo& battery, const LocalizationManager& loc);

} // namespace tarvo::ui
