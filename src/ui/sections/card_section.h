#pragma once

#include "ui/cards/card.h"
#include "ui/controls/card_column.h"
#include "ui/sections/section.h"

#include <vector>

namespace tarvo::ui {

/// A section that is a scrolling column of cards.
class CardSection : public Section {
public:
    CardSection(DetailContext& context, const SectionTitle& title, QWidget* parent);

protected:
    void refresh() override;
    /// Adds a card at the bottom.
    template <typename CardType>
    CardType* add(CardType* card) {
        cards_.push_back(card);
        cardColumn_->addCard(card);
        return card;
    }
    const StatsSnapshot& snapshot() const { return context_.panel.model.snap(); }

private:
    CardColumn* cardColumn_;
    std::vector<Card*> cards_;
};

} // namespace tarvo::ui
