#pragma once

#include "ui/cards/card.h"
#include "ui/elements/hero_stat_card.h"
#include "ui/elements/stat_row.h"

#include <array>

namespace tarvo::ui {

/// Processor and memory as two large cards side by side.
class HeroRow : public Card {
public:
    HeroRow(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

protected:
    void paintEvent(QPaintEvent*) override {} // its cards have grounds of their own

private:
    HeroStatCard* cpu_;
    HeroStatCard* memory_;
};

/// The tiles below the graph, in two columns.
class OverviewTiles : public Card {
public:
    OverviewTiles(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

protected:
    void paintEvent(QPaintEvent*) override {}

private:
    static constexpr std::size_t tileCount = 5;
    std::array<Card*, tileCount> tiles_;
};

} // namespace tarvo::ui
