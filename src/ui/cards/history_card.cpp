#include "ui/cards/history_card.h"

#include "ui/style/metrics.h"

namespace tarvo::ui {

HistoryCard::HistoryCard(PanelContext& context, QWidget* parent)
    : Card(context, parent),
      picker_(add(new SegmentedControl([this](int index) { setRange(static_cast<HistoryRange>(index)); }))),
      cpuTitle_(new TextLabel({"", TextRole::caption, colors::secondary})),
      memoryTitle_(new TextLabel({"", TextRole::caption, colors::secondary})), cpu_(new Sparkline),
      memory_(new Sparkline), live_(add(makeLiveView())), chart_(add(new DayHistoryChart(context.loc))) {
    column()->setSpacing(metrics::regular);
    chart_->hide();
    chart_->setFixedHeight(chart_->sizeHint().height());
}

QWidget* HistoryCard::makeLiveView() {
    auto* view = new QWidget;
    auto* lines = new QVBoxLayout(view);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(metrics::tight);
    for (QWidget* line : {static_cast<QWidget*>(cpuTitle_), static_cast<QWidget*>(cpu_),
                          static_cast<QWidget*>(memoryTitle_), static_cast<QWidget*>(memory_)}) {
        lines->addWidget(line);
    }
    return view;
}

void HistoryCard::setRange(HistoryRange range) {
    range_ = range;
    show(context_.model.snap());
}

void HistoryCard::show(const StatsSnapshot&) {
    picker_->setLabels({t({.cs = "Živě", .en = "Live"}), "24h", "7d", "14d"});
    picker_->setChosen(static_cast<int>(range_));
    const bool isLive = range_ == HistoryRange::live;
    setShown(live_, isLive);
    setShown(chart_, !isLive);
    if (isLive) {
        showLive();
    } else {
        showStored();
    }
}

void HistoryCard::showLive() {
    constexpr int samples = static_cast<int>(StatsModel::maxHistory);
    cpuTitle_->setText("CPU");
    memoryTitle_->setText(t({.cs = "Paměť", .en = "Memory"}));
    cpu_->set({context_.model.cpuHistory(), samples, colors::blue});
    memory_->set({context_.model.memHistory(), samples, colors::purple});
    // The chart's two weeks of minutes are not kept for nothing.
    if (shown_) chart_->set({});
    shown_.reset();
}

void HistoryCard::showStored() {
    if (!context_.historySamples) return;
    const Shown wanted{range_, context_.lastHistorySample ? context_.lastHistorySample() : WallTime{}};
    if (shown_ == wanted) return;
    shown_ = wanted;
    chart_->set({context_.historySamples(popoverHours(range_)), range_});
}

} // namespace tarvo::ui
