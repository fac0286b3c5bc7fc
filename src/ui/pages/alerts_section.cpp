#include "ui/pages/settings_section.h"
#include "ui/pages/settings_sections.h"

namespace tarvo::ui {

SettingsSection* makeAlertsSection(PanelContext& context, QWidget* parent) {
    auto* section = new SettingsSection(context, {.cs = "UPOZORNĚNÍ", .en = "ALERTS"}, parent);
    section->addSwitch(keys::notificationsEnabled, {.cs = "Povolit upozornění", .en = "Enable Alerts"});
    section->addThreshold(keys::cpuAlertThreshold, {.cs = "CPU nad", .en = "CPU above"}, "%", {5, 100, 5});
    section->addThreshold(keys::diskFreeAlertGB, {.cs = "Volné místo pod", .en = "Free space below"}, "GB",
                          {0, 1000, 1});
    section->addThreshold(keys::batteryAlertPercent, {.cs = "Baterie pod", .en = "Battery below"}, "%",
                          {5, 95, 5});
    return section;
}

} // namespace tarvo::ui
