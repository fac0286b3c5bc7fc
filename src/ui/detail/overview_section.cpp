#include "ui/detail/overview_section.h"

#include "ui/detail/overview_tiles.h"

namespace tarvo::ui {

OverviewSection::OverviewSection(DetailContext& context, QWidget* parent)
    : CardSection(context, {"square.grid.2x2.fill", colors::blue, {.cs = "Přehled", .en = "Overview"}},
                  parent),
      history_(nullptr) {
    add(new HeroRow(context.panel, this));
    history_ = add(new OverviewHistoryCard(context.panel, this));
    add(new OverviewTiles(context.panel, this));
}

} // namespace tarvo::ui
