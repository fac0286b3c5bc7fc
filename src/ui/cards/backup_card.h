#pragma once

#include "ui/cards/card.h"
#include "ui/elements/stat_row.h"

namespace tarvo::ui {

/// Whether a backup runs and when the latest one was made.
class BackupCard : public Card {
public:
    BackupCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    std::string runningText(const TimeMachineInfo& backup) const;

    StatRow* state_;
    TextLabel* missing_;
    StatRow* last_;
};

} // namespace tarvo::ui
