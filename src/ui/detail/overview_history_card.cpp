#include "ui/detail/overview_history_card.h"

#include "ui/cards/card_title.h"
#include "ui/style/metrics.h"

#include <QHBoxLayout>

namespace tarvo::ui {
namespace {

constexpr int chartHeight = 90; // so that the overview fits into the window as it opens
constexpr int pickerWidth = 180;
// The picker has no segment for the live range, the first of the enumeration.
constexpr int firstRange = static_cast<int>(HistoryRange::day);

} // namespace

OverviewHistoryCard::OverviewHistoryCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), title_(new TextLabel), picker_(new SegmentedControl([this](int index) {
          setRange(static_cast<HistoryRange>(index + firstRange));
      })),
      chart_(new DayHistoryChart(context.loc)) {
    auto* row = new QHBoxLayout;
    row->addWidget(title_, 1);
    row->addWidget(picker_);
    picker_->setFixedWidth(pickerWidth);
    column()->setSpacing(metrics::regular);
    column()->addLayout(row);
    column()->addWidget(chart_);
    chart_->setFixedHeight(chartHeight);
}

void OverviewHistoryCard::setRange(HistoryRange range) {
    range_ = range;
    show(context_.model.snap());
}

void OverviewHistoryCard::show(const StatsSnapshot&) {
    title_->set(cardTitle(t({.cs = "Graf historie", .en = "History Graph"})));
    picker_->setLabels({"24h", "7d", "14d"});
    picker_->setChosen(static_cast<int>(range_) - firstRange);
    if (!context_.historySamples) return;
    const Shown wanted{range_, context_.lastHistorySample ? context_.lastHistorySample() : WallTime{}};
    if (shown_ == wanted) return;
    shown_ = wanted;
    chart_->set({context_.historySamples(overviewHours(range_)), range_});
}

} // namespace tarvo::ui
