#pragma once

#include "localization/localization_manager.h"
#include "ui/controls/module_toggle_tile.h"
#include "ui/pages/settings_section.h"

#include <span>
#include <string_view>

namespace tarvo::ui {

/// A tile that is bound to a boolean setting.
struct BoundTile {
    std::string_view key;
    std::string_view icon; ///< system symbol name
    LKey label;
    Color color;
};

struct TileLayout {
    int columns = 3;
    int labelLines = 1;
};

/// Adds a grid of tiles to the section; each is named after its key. The rows of the table stay where they
/// are.
void addTileGrid(SettingsSection& section, PanelContext& context, std::span<const BoundTile> tiles,
                 TileLayout layout);

} // namespace tarvo::ui
