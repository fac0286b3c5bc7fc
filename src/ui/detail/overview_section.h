#pragma once

#include "ui/detail/overview_history_card.h"
#include "ui/elements/hero_stat_card.h"
#include "ui/sections/card_section.h"

namespace tarvo::ui {

/// Everything at a glance: processor and memory large, their history, and a tile for each other reading.
class OverviewSection : public CardSection {
public:
    OverviewSection(DetailContext& context, QWidget* parent);
    HistoryRange historyRange() const { return history_->range(); }

private:
    OverviewHistoryCard* history_;
};

} // namespace tarvo::ui
