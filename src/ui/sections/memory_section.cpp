#include "ui/sections/memory_section.h"

#include "ui/cards/card_title.h"
#include "ui/elements/stat_row.h"
#include "ui/sections/live_card.h"
#include "ui/sections/reading_texts.h"

#include <fmt/format.h>

#include <array>

namespace tarvo::ui {
namespace {

struct Share {
    std::string_view symbol;
    Color color;
    LKey label;
    double StatsSnapshot::*gigabytes;
};

constexpr std::array<Share, 5> shares{{
    {"lock.fill", colors::red, {.cs = "Wired", .en = "Wired"}, &StatsSnapshot::memWiredGB},
    {"bolt.fill", colors::orange, {.cs = "Aktivní", .en = "Active"}, &StatsSnapshot::memActiveGB},
    {"arrow.down.right.and.arrow.up.left",
     colors::purple,
     {.cs = "Komprimovaná", .en = "Compressed"},
     &StatsSnapshot::memCompressedGB},
    {"moon.fill", colors::indigo, {.cs = "Neaktivní", .en = "Inactive"}, &StatsSnapshot::memInactiveGB},
    {"circle.dashed", colors::green, {.cs = "Volná", .en = "Free"}, &StatsSnapshot::memFreeGB},
}};

class BreakdownCard : public Card {
public:
    BreakdownCard(PanelContext& context, QWidget* parent)
        : Card(context, parent), title_(add(new TextLabel)) {
        column()->setSpacing(0);
        for (StatRow*& row : rows_)
            row = add(new StatRow);
    }

    void show(const StatsSnapshot& snapshot) override {
        title_->set(cardTitle(t({.cs = "Rozpad paměti", .en = "Memory Breakdown"})));
        for (std::size_t index = 0; index < shares.size(); ++index) {
            const Share& share = shares[index];
            rows_[index]->set({std::string(share.symbol), share.color, t(share.label),
                               gigabyteText(snapshot.*share.gigabytes), colors::primary});
        }
    }

private:
    TextLabel* title_;
    std::array<StatRow*, shares.size()> rows_{};
};

class SwapCard : public Card {
public:
    SwapCard(PanelContext& context, QWidget* parent) : Card(context, parent), row_(add(new StatRow)) {}

    void show(const StatsSnapshot& snapshot) override {
        row_->set({"arrow.left.arrow.right", colors::teal, "Swap",
                   fmt::format("{:.1f} / {:.1f} GB", snapshot.swapUsedGB, snapshot.swapTotalGB),
                   colors::primary});
    }

private:
    StatRow* row_;
};

} // namespace

MemorySection::MemorySection(DetailContext& context, QWidget* parent)
    : CardSection(context, {"memorychip.fill", colors::purple, {.cs = "Paměť", .en = "Memory"}}, parent) {
    add(new LiveCard(context.panel, &StatsModel::memHistory, colors::purple, this));
    add(new BreakdownCard(context.panel, this));
    add(new SwapCard(context.panel, this));
}

void MemorySection::refresh() {
    setReading(memoryText(snapshot().memUsedGB, snapshot().memTotalGB));
    CardSection::refresh();
}

} // namespace tarvo::ui
