#include "ui/cards/battery_texts.h"

#include "sensors/format_minutes.h"

namespace tarvo::ui {

std::string_view batterySymbol(const BatteryInfo& battery) {
    if (battery.isCharging) return "battery.100percent.bolt";
    if (battery.percentage <= 25) return "battery.25percent";
    if (battery.percentage <= 50) return "battery.50percent";
    return battery.percentage <= 75 ? "battery.75percent" : "battery.100percent";
}

Color batteryColor(const BatteryInfo& battery) {
    if (battery.percentage <= 20) return colors::red;
    return battery.percentage <= 40 ? colors::orange : colors::green;
}

std::string batteryState(const BatteryInfo& battery, const LocalizationManager& loc) {
    if (battery.isFullyCharged) return loc.t({.cs = "nabito", .en = "charged"});
    if (battery.isCharging) return loc.t({.cs = "nabíjí se", .en = "charging"});
    if (battery.isPluggedIn) return loc.t({.cs = "napájení", .en = "plugged in"});
    return loc.t({.cs = "na baterii", .en = "on battery"});
}

std::string batteryTime(const BatteryInfo& battery, const LocalizationManager& loc) {
    const bool isCzech = loc.language() == AppLanguage::cs;
    if (battery.isCharging && battery.timeToFullMinutes) {
        const std::string time = formatMinutes(*battery.timeToFullMinutes);
        return isCzech ? "do plna " + time : time + " to full";
    }
    if (!battery.isPluggedIn && battery.timeToEmptyMinutes) {
        const std::string time = formatMinutes(*battery.timeToEmptyMinutes);
        return isCzech ? "zbývá " + time : time + " remaining";
    }
    return {};
}

std::string batteryWear(const BatteryInfo& battery, const LocalizationManager& loc) {
    std::string text;
    if (battery.cycleCount)
        text = loc.t({.cs = "cyklů: ", .en = "cycles: "}) + std::to_string(*battery.cycleCount);
    if (!battery.healthPercent) return text;
    if (!text.empty()) text += " · ";
    return text + loc.t({.cs = "zdraví: ", .en = "health: "}) + std::to_string(*battery.healthPercent) + "%";
}

} // namespace tarvo::ui
