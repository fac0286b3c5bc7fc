#pragma once

#include "ui/cards/card.h"
#include "ui/elements/capacity_bar.h"
#include "ui/elements/stat_row.h"

namespace tarvo::ui {

/// Free space of the disk and its traffic.
class DiskCard : public Card {
public:
    DiskCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    std::string spaceText(const StatsSnapshot& snapshot) const;

    StatRow* space_;
    CapacityBar* bar_;
    StatRow* traffic_;
};

} // namespace tarvo::ui
