#pragma once

#include "ui/cards/card.h"
#include "ui/controls/label_button.h"

namespace tarvo::ui {

/// Tells of a newer version and offers its address.
class UpdateBanner : public Card {
public:
    UpdateBanner(PanelContext& context, QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    TextLabel* title_;
    TextLabel* text_;
    LabelButton* download_;
};

} // namespace tarvo::ui
