#pragma once

#include "ui/elements/card_background.h"
#include "ui/elements/text_label.h"
#include "ui/pages/panel_context.h"

#include <QVBoxLayout>

#include <optional>
#include <string>
#include <string_view>

namespace tarvo::ui {

/// What stands where a reading is not available.
inline constexpr std::string_view unavailable = "—";

/// One card of the stats page: shows its part of a snapshot in the current language. Showing an equal
/// snapshot again repaints nothing.
class Card : public CardBackground {
public:
    Card(PanelContext& context, QWidget* parent);
    using QWidget::show;
    virtual void show(const StatsSnapshot& snapshot) = 0;

protected:
    std::string t(const LKey& key) const { return context_.loc.t(key); }
    /// "45 °C", or the sign for an unavailable reading.
    std::string temperature(std::optional<double> celsius) const;
    QVBoxLayout* column() const { return column_; }
    /// Adds a widget at the bottom of the card.
    template <typename Widget>
    Widget* add(Widget* widget) {
        column_->addWidget(widget);
        return widget;
    }

    PanelContext& context_; // NOLINT: shared with the derived cards on purpose

private:
    QVBoxLayout* column_;
};

/// Shows or hides without a change when nothing changes.
void setShown(QWidget* widget, bool shown);

/// Bytes as "1.5 GB", a GB being 2^30 bytes as in the rates beside it.
std::string gigabytes(std::uint64_t bytes);

} // namespace tarvo::ui
