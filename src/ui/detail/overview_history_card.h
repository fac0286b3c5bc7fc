#pragma once

#include "ui/cards/card.h"
#include "ui/controls/segmented_control.h"
#include "ui/elements/day_history_chart.h"

#include <optional>

namespace tarvo::ui {

/// The stored history of a day, a week or two.
class OverviewHistoryCard : public Card {
public:
    OverviewHistoryCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;
    HistoryRange range() const { return range_; }
    void setRange(HistoryRange range);

private:
    struct Shown {
        HistoryRange range;
        WallTime newest;
        bool operator==(const Shown&) const = default;
    };

    HistoryRange range_ = HistoryRange::day;
    TextLabel* title_;
    SegmentedControl* picker_;
    DayHistoryChart* chart_;
    std::optional<Shown> shown_; ///< what the chart holds
};

} // namespace tarvo::ui
