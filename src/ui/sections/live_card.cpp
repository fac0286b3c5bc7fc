#include "ui/sections/live_card.h"

#include "ui/cards/card_title.h"

namespace tarvo::ui {
namespace {

constexpr int lineHeight = 72;

} // namespace

LiveCard::LiveCard(PanelContext& context, const std::vector<double>& (StatsModel::*values)() const,
                   Color color, QWidget* parent)
    : Card(context, parent), values_(values), color_(color), title_(add(new TextLabel)),
      line_(add(new Sparkline)) {
    line_->setFixedHeight(lineHeight);
}

void LiveCard::show(const StatsSnapshot&) {
    title_->set(cardTitle(t({.cs = "Živě", .en = "Live"})));
    line_->set({(context_.model.*values_)(), static_cast<int>(StatsModel::maxHistory), color_});
}

} // namespace tarvo::ui
