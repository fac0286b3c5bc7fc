#include "ui/sections/card_section.h"

namespace tarvo::ui {

CardSection::CardSection(DetailContext& context, const SectionTitle& title, QWidget* parent)
    : Section(context, title, parent), cardColumn_(new CardColumn(this)) {
    column()->addWidget(cardColumn_, 1);
}

void CardSection::refresh() {
    for (Card* card : cards_)
        card->show(snapshot());
}

} // namespace tarvo::ui
