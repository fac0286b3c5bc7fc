#pragma once

#include "history/history_range.h"
#include "ui/cards/card.h"
#include "ui/controls/segmented_control.h"
#include "ui/elements/day_history_chart.h"
#include "ui/elements/sparkline.h"

#include <optional>

namespace tarvo::ui {

/// The latest values as sparklines, or the stored history of a day, a week or two weeks as a chart.
class HistoryCard : public Card {
public:
    HistoryCard(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;
    HistoryRange range() const { return range_; }
    void setRange(HistoryRange range);

private:
    QWidget* makeLiveView();
    void showLive();
    void showStored();

    HistoryRange range_ = HistoryRange::live;
    SegmentedControl* picker_;
    TextLabel* cpuTitle_;
    TextLabel* memoryTitle_;
    Sparkline* cpu_;
    Sparkline* memory_;
    QWidget* live_;
    DayHistoryChart* chart_;
    struct Shown {
        HistoryRange range;
        WallTime latest;
        bool operator==(const Shown&) const = default;
    };
    std::optional<Shown> shown_; ///< what the chart holds
};

} // namespace tarvo::ui
