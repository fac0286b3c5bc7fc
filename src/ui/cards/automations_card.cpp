#include "ui/cards/automations_card.h"

#include "ui/cards/action_grid.h"
#include "ui/style/metrics.h"

#include <QVBoxLayout>

namespace tarvo::ui {
namespace {

constexpr int labelLines = 2;

} // namespace

AutomationsCard::AutomationsCard(const AutomationsContext& context, QWidget* parent)
    : CardBackground(parent), context_(context),
      caption_(new TextLabel({"", TextRole::caption, colors::secondary})),
      grid_(new ActionGrid([this](std::size_t index) { context_.runner.run(names_.at(index)); })),
      later_([this] { refresh(); }) {
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(metrics::regular);
    column->addWidget(caption_);
    column->addWidget(grid_);
    grid_->setLabelLines(labelLines);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    const auto ask = [this] { later_.ask(); };
    subscriptions_.push_back(context_.settings.defaults().observe(ask));
    subscriptions_.push_back(context_.loc.publishedLanguage().observeWillChange(ask));
    refresh();
}

void AutomationsCard::showEvent(QShowEvent* event) {
    refresh();
    CardBackground::showEvent(event);
}

void AutomationsCard::refresh() {
    caption_->setText(context_.loc.t({.cs = "Vlastní automatizace", .en = "Custom Automations"}));
    names_ = context_.settings.customShortcuts();
    std::vector<QuickActionButtonFields> tiles;
    for (const std::string& name : names_)
        tiles.push_back({"bolt.fill", name, colors::yellow});
    grid_->setTiles(tiles);
}

} // namespace tarvo::ui
