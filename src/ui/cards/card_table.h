#pragma once

#include "ui/pages/panel_context.h"

#include <span>
#include <string_view>

namespace tarvo::ui {

class Card;

/// A row of the stats page: which card, and when it is shown.
struct CardRow {
    std::string_view key; ///< visibility setting; empty: whenever it is available
    /// Null: always available.
    bool (*isAvailable)(const PanelContext& context, const StatsSnapshot& snapshot);
    /// May give null: there is no such card now.
    QWidget* (*make)(PanelContext& context, QWidget* parent);
};

/// The cards of the stats page from top to bottom.
std::span<const CardRow> cardTable();

} // namespace tarvo::ui
