#pragma once

#include "ui/cards/card.h"
#include "ui/elements/sparkline.h"

namespace tarvo::ui {

/// The latest values of one reading as a line.
class LiveCard : public Card {
public:
    /// `values` is the model's list of percentages.
    LiveCard(PanelContext& context, const std::vector<double>& (StatsModel::*values)() const, Color color,
             QWidget* parent);
    void show(const StatsSnapshot& snapshot) override;

private:
    const std::vector<double>& (StatsModel::*values_)() const;
    Color color_;
    TextLabel* title_;
    Sparkline* line_;
};

} // namespace tarvo::ui
