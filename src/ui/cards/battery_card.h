#pragma once

#include "ui/cards/card.h"
#include "ui/elements/badge.h"
#include "ui/elements/capacity_bar.h"
#include "ui/elements/stat_row.h"

namespace tarvo::ui {

/// Charge, state, time and wear of the battery. Shown only on machines that have one.
class BatteryCard : public Card {
public:
    BatteryCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    StatRow* level_;
    CapacityBar* bar_;
    Badge* state_;
    TextLabel* time_;
    TextLabel* wear_;
};

} // namespace tarvo::ui
