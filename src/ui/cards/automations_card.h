#pragma once

#include "ui/cards/automations_context.h"
#include "ui/elements/card_background.h"
#include "ui/elements/text_label.h"
#include "ui/pages/later.h"

#include <string>
#include <vector>

namespace tarvo::ui {

class ActionGrid;

/// The card with a tile for each automation that the user chose. It follows the stored names and the language
/// by itself.
class AutomationsCard : public CardBackground {
public:
    AutomationsCard(const AutomationsContext& context, QWidget* parent);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void refresh();

    AutomationsContext context_;
    TextLabel* caption_;
    ActionGrid* grid_;
    std::vector<std::string> names_;
    Later later_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tarvo::ui
