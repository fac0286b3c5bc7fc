#pragma once

#include "ui/cards/card.h"
#include "ui/elements/capacity_bar.h"
#include "ui/elements/level_row.h"
#include "ui/elements/stat_row.h"
#include "ui/sections/detail_context.h"

#include <vector>

namespace tarvo::ui {

/// Charge and state, or that there is no battery.
class BatteryStateCard : public Card {
public:
    BatteryStateCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* missing_;
    StatRow* state_;
    CapacityBar* bar_;
};

/// Remaining time, cycles, health and power. Hidden without a battery.
class BatteryHealthCard : public Card {
public:
    BatteryHealthCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* title_;
    StatRow* time_;
    StatRow* cycles_;
    StatRow* health_;
    StatRow* power_;
};

/// The applications that have demanded most of the processor since launch.
class DemandingAppsCard : public Card {
public:
    DemandingAppsCard(DetailContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    std::string note() const;

    DetailContext& detail_;
    TextLabel* title_;
    TextLabel* note_;
    TextLabel* none_;
    std::vector<LevelRow*> rows_;
};

} // namespace tarvo::ui
