#include "ui/sections/battery_words.h"

#include "sensors/format_minutes.h"
#include "ui/cards/card.h"

namespace tarvo::ui {

std::string batteryMissingText(const LocalizationManager& loc) {
    return loc.t({.cs = "Baterie není dostupná", .en = "Battery not available"});
}

std::string sectionBatteryState(const BatteryInfo& battery, const LocalizationManager& loc) {
    if (!battery.isPluggedIn) return loc.t({.cs = "na baterii", .en = "on battery"});
    return battery.isCharging ? loc.t({.cs = "nabíjí se", .en = "charging"})
                              : loc.t({.cs = "napájení", .en = "plugged in"});
}

std::string panelBatteryState(const BatteryInfo& battery, const LocalizationManager& loc) {
    if (!battery.isPluggedIn) return loc.t({.cs = "Na baterii", .en = "On battery"});
    if (battery.isFullyCharged) return loc.t({.cs = "Nabito", .en = "Charged"});
    return battery.isCharging ? loc.t({.cs = "Nabíjí se", .en = "Charging"})
                              : loc.t({.cs = "Připojeno", .en = "Plugged in"});
}

BatteryTime batteryTimeRow(const BatteryInfo& battery, const LocalizationManager& loc) {
    const auto minutes = battery.isCharging ? battery.timeToFullMinutes : battery.timeToEmptyMinutes;
    return {battery.isCharging ? loc.t({.cs = "Do plna", .en = "To full"})
                               : loc.t({.cs = "Zbývá", .en = "Remaining"}),
            minutes ? formatMinutes(*minutes) : std::string(unavailable)};
}

std::string chargeLimitNote(SystemFamily family, const LocalizationManager& loc) {
    if (family == SystemFamily::macOS) {
        return loc.t({.cs = "Limit nabíjení macOS řídí adaptivně (Optimalizované nabíjení) — pevné procento "
                            "nejde ze systému přečíst.",
                      .en =
                          "macOS manages the charge limit adaptively (Optimized Battery Charging) — there's "
                          "no fixed percentage the system can report."});
    }
    return loc.t({.cs = "Limit nabíjení řídí firmware počítače a zde se nezobrazuje.",
                  .en = "The charge limit is managed by the computer's firmware and isn't shown here."});
}

} // namespace tarvo::ui
