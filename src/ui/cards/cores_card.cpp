#include "ui/cards/cores_card.h"

#include "ui/cards/card_title.h"

namespace tarvo::ui {

CoresCard::CoresCard(PanelContext& context, QWidget* parent)
    : Card(context, parent), title_(add(new TextLabel)), bars_(add(new CoreBars)) {}

void CoresCard::show(const StatsSnapshot& snapshot) {
    title_->set(cardTitle(t({.cs = "Jádra CPU", .en = "CPU Cores"})));
    bars_->set({snapshot.perCore});
}

} // namespace tarvo::ui
