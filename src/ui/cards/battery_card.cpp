#include "ui/cards/battery_card.h"

#include "ui/cards/battery_texts.h"
#include "ui/cards/card_title.h"
#include "ui/style/metrics.h"

#include <QHBoxLayout>

namespace tarvo::ui {

BatteryCard::BatteryCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), level_(add(new StatRow)), bar_(add(new CapacityBar)), state_(new Badge),
      time_(new TextLabel), wear_(nullptr) {
    auto* line = new QHBoxLayout;
    line->setContentsMargins(0, metrics::tight, 0, 0);
    line->setSpacing(metrics::regular);
    line->addWidget(state_);
    line->addWidget(time_, 1);
    column()->addLayout(line);
    wear_ = add(new TextLabel);
}

void BatteryCard::show(const StatsSnapshot& snapshot) {
    if (!snapshot.battery) return;
    const BatteryInfo& battery = *snapshot.battery;
    const Color color = batteryColor(battery);
    level_->set({std::string(batterySymbol(battery)), color, t({.cs = "Baterie", .en = "Battery"}),
                 std::to_string(battery.percentage) + "%", colors::primary});
    bar_->set({static_cast<double>(battery.percentage) / 100, color});
    state_->set({batteryState(battery, context_.loc), color});
    time_->set({batteryTime(battery, context_.loc), TextRole::caption, colors::secondary});
    const std::string wear = batteryWear(battery, context_.loc);
    setShown(wear_, !wear.empty());
    wear_->set(cardSubtitle(wear));
}

} // namespace tarvo::ui
