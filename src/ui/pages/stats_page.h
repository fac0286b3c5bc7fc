#pragma once

#include "ui/controls/card_column.h"
#include "ui/controls/icon_button.h"
#include "ui/controls/label_button.h"
#include "ui/elements/gradient_symbol.h"
#include "ui/elements/text_label.h"
#include "ui/pages/later.h"
#include "ui/pages/panel_context.h"

#include <functional>
#include <vector>

namespace tarvo::ui {

/// The first page of the popover: a column of cards over the latest snapshot. It follows the model, the
/// settings and the language while it is visible, and does nothing while it is not.
class StatsPage : public QWidget {
public:
    /// `onSettings` switches to the settings page.
    StatsPage(PanelContext& context, std::function<void()> onSettings, QWidget* parent = nullptr);

    /// The card of a row of cardTable(), null while it is not shown.
    QWidget* shownCard(std::size_t row) const;

protected:
    void showEvent(QShowEvent* event) override;

private:
    QWidget* makeHeader(std::function<void()> onSettings);
    QWidget* makeFooter();
    void observe();
    void refresh();
    void updateCard(std::size_t row, const StatsSnapshot& snapshot);
    int placeInColumn(std::size_t row) const;

    PanelContext& context_;
    GradientSymbol* symbol_;
    IconButton* detail_;
    IconButton* settings_;
    CardColumn* column_;
    LabelButton* quit_;
    std::vector<QWidget*> cards_; ///< one for each row of cardTable(), null until it was needed
    Later later_;
    std::vector<Subscription> subscriptions_;
};

} // namespace tarvo::ui
