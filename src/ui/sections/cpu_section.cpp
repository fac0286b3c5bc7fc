#include "ui/sections/cpu_section.h"

#include "ui/cards/card_title.h"
#include "ui/elements/stat_row.h"
#include "ui/sections/core_rings.h"
#include "ui/sections/live_card.h"
#include "ui/sections/reading_texts.h"
#include "ui/style/metrics.h"

#include <fmt/format.h>

#include <QHBoxLayout>

namespace tarvo::ui {
namespace {

class LoadAverageCard : public Card {
public:
    LoadAverageCard(PanelContext& context, QWidget* parent)
        : Card(context, parent), title_(add(new TextLabel)), one_(new StatRow), five_(new StatRow),
          fifteen_(new StatRow) {
        auto* row = new QHBoxLayout;
        row->setSpacing(metrics::huge);
        for (StatRow* value : {one_, five_, fifteen_})
            row->addWidget(value);
        column()->addLayout(row);
    }

    void show(const StatsSnapshot& snapshot) override {
        title_->set(cardTitle(t({.cs = "Průměrné zatížení", .en = "Load Average"})));
        showValue(one_, "1.circle.fill", "1 min", snapshot.loadAvg1);
        showValue(five_, "5.circle.fill", "5 min", snapshot.loadAvg5);
        showValue(fifteen_, "15.circle.fill", "15 min", snapshot.loadAvg15);
    }

private:
    static void showValue(StatRow* row, const char* symbol, const char* label, double value) {
        row->set({symbol, colors::blue, label, fmt::format("{:.2f}", value), colors::primary});
    }

    TextLabel* title_;
    StatRow* one_;
    StatRow* five_;
    StatRow* fifteen_;
};

class CoreRingsCard : public Card {
public:
    CoreRingsCard(PanelContext& context, QWidget* parent)
        : Card(context, parent), title_(add(new TextLabel)), rings_(add(new CoreRings)) {
        column()->setSpacing(metrics::medium);
        // As high as the rings need at the column's width.
        QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
        policy.setHeightForWidth(true);
        setSizePolicy(policy);
    }

    void show(const StatsSnapshot& snapshot) override {
        title_->set(cardTitle(t({.cs = "Vytížení po jádrech", .en = "Per-Core Usage"})));
        rings_->set({snapshot.perCore});
    }

private:
    TextLabel* title_;
    CoreRings* rings_;
};

} // namespace

CPUSection::CPUSection(DetailContext& context, QWidget* parent)
    : CardSection(context, {"cpu.fill", colors::blue, {.cs = "CPU", .en = "CPU"}}, parent) {
    add(new LiveCard(context.panel, &StatsModel::cpuHistory, colors::blue, this));
    add(new LoadAverageCard(context.panel, this));
    add(new CoreRingsCard(context.panel, this));
}

void CPUSection::refresh() {
    setReading(percentText(snapshot().cpu));
    CardSection::refresh();
}

} // namespace tarvo::ui
