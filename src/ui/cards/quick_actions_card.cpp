#include "ui/cards/quick_actions_card.h"

#include "ui/cards/action_grid.h"
#include "ui/style/metrics.h"

#include <QVBoxLayout>

namespace tarvo::ui {
namespace {

Color shade(ActionColor color) {
    switch (color) {
    case ActionColor::red:
        return colors::red;
    case ActionColor::blue:
        return colors::blue;
    case ActionColor::indigo:
        return colors::indigo;
    case ActionColor::purple:
        return colors::purple;
    case ActionColor::gray:
        return colors::gray;
    case ActionColor::teal:
        return colors::teal;
    case ActionColor::yellow:
        return colors::yellow;
    }
    return colors::primary;
}

} // namespace

QuickActionsCard::QuickActionsCard(QuickActions& actions, LocalizationManager& loc, QWidget* parent)
    : CardBackground(parent), actions_(actions), loc_(loc),
      caption_(new TextLabel({"", TextRole::caption, colors::secondary})),
      grid_(new ActionGrid([this](std::size_t index) { actions_.trigger(shown_.at(index)); })),
      later_([this] { refresh(); }) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::regular);
    column->addWidget(caption_);
    column->addWidget(grid_);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    subscription_ = loc_.publishedLanguage().observeWillChange([this] { later_.ask(); });
    refresh();
}

void QuickActionsCard::showEvent(QShowEvent* event) {
    refresh();
    CardBackground::showEvent(event);
}

void QuickActionsCard::refresh() {
    caption_->setText(loc_.t({.cs = "Rychlé akce", .en = "Quick Actions"}));
    std::vector<QuickActionButtonFields> tiles;
    shown_.clear();
    for (const QuickActionTile& tile : actions_.tiles()) {
        shown_.push_back(tile.action);
        tiles.push_back({std::string(tile.icon), tile.label, shade(tile.color)});
    }
    grid_->setTiles(tiles);
}

} // namespace tarvo::ui
