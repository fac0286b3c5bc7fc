#pragma once

#include "ui/cards/card.h"
#include "ui/elements/stat_row.h"
#include "ui/elements/temp_bar.h"

#include <vector>

namespace tarvo::ui {

/// Processor temperature, fans and power draw.
class SensorsCard : public Card {
public:
    SensorsCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    void showCooling(const StatsSnapshot& snapshot);

    StatRow* temperature_;
    TempBar* bar_;
    StatRow* cooling_;
    QVBoxLayout* fans_;
    std::vector<StatRow*> fanRows_;
    StatRow* power_;
};

} // namespace tarvo::ui
