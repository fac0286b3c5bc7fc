#pragma once

#include "ui/cards/card.h"

#include <vector>

namespace tarvo::ui {

class ProcessRow;

/// The processes that use the processor most.
class ProcessesCard : public Card {
public:
    ProcessesCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* title_;
    TextLabel* loading_;
    std::vector<ProcessRow*> rows_;
};

} // namespace tarvo::ui
