#pragma once

#include "actions/quick_actions.h"
#include "ui/elements/card_background.h"
#include "ui/elements/text_label.h"
#include "ui/pages/later.h"

#include <vector>

namespace tarvo::ui {

class ActionGrid;

/// The card of the one-click actions that this desktop can do. It follows the language by itself, and looks
/// again what can be done each time it appears.
class QuickActionsCard : public CardBackground {
public:
    /// Both outlive the card.
    QuickActionsCard(QuickActions& actions, LocalizationManager& loc, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();

    QuickActions& actions_;
    LocalizationManager& loc_;
    TextLabel* caption_;
    ActionGrid* grid_;
    std::vector<QuickAction> shown_; ///< one for each tile of the grid
    Later later_;
    Subscription subscription_;
};

} // namespace tarvo::ui
