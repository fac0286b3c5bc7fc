#include "ui/pages/tile_grid.h"

#include "ui/style/metrics.h"

#include <QGridLayout>

namespace tarvo::ui {
namespace {

ModuleToggleTile* makeTile(SettingsSection& section, PanelContext& context, const BoundTile& tile) {
    auto* button = new ModuleToggleTile;
    button->setObjectName(QString::fromUtf8(tile.key.data(), static_cast<qsizetype>(tile.key.size())));
    QObject::connect(button, &QAbstractButton::toggled, button, [&context, &tile](bool isOn) {
        SettingBindings(context.settings, context.notifications).set(tile.key, isOn);
    });
    section.onRefresh([button, &context, &tile] {
        button->set({std::string(tile.icon), context.loc.t(tile.label), tile.color});
        button->setOn(context.settings.boolean(tile.key));
    });
    return button;
}

} // namespace

void addTileGrid(SettingsSection& section, PanelContext& context, std::span<const BoundTile> tiles,
                 TileLayout layout) {
    auto* box = new QWidget;
    auto* grid = new QGridLayout(box);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(metrics::tight);
    for (std::size_t index = 0; index < tiles.size(); ++index) {
        const int place = static_cast<int>(index);
        ModuleToggleTile* tile = makeTile(section, context, tiles[index]);
        tile->setLabelLines(layout.labelLines);
        grid->addWidget(tile, place / layout.columns, place % layout.columns);
    }
    for (int column = 0; column < layout.columns; ++column)
        grid->setColumnStretch(column, 1);
    section.addWidget(box);
}

} // namespace tarvo::ui
