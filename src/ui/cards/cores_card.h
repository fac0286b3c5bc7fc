#pragma once

#include "ui/cards/card.h"
#include "ui/cards/core_bars.h"

namespace tarvo::ui {

/// The load of each processor core.
class CoresCard : public Card {
public:
    CoresCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* title_;
    CoreBars* bars_;
};

} // namespace tarvo::ui
