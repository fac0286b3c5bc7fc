#include "ui/sections/battery_section.h"

#include "ui/sections/battery_cards.h"

namespace tarvo::ui {

BatterySection::BatterySection(DetailContext& context, QWidget* parent)
    : CardSection(context, {"battery.100percent", colors::green, {.cs = "Baterie", .en = "Battery"}},
                  parent) {
    add(new BatteryStateCard(context.panel, this));
    add(new BatteryHealthCard(context.panel, this));
    add(new DemandingAppsCard(context, this));
}

void BatterySection::refresh() {
    const auto& battery = snapshot().battery;
    setReading(battery ? std::to_string(battery->percentage) + "%" : "");
    CardSection::refresh();
}

} // namespace tarvo::ui
