#include "ui/controls/segmented_control.h"
#include "ui/pages/settings_sections.h"
#include "ui/pages/tile_grid.h"

#include "menubar/menu_bar_module_table.h"

#include <algorithm>
#include <array>

namespace tarvo::ui {
namespace {

constexpr TileLayout tileLayout{3, 1};

constexpr std::array<std::string_view, 3> hosts{"auto", "tray", "bar"};

BoundTile tileOf(MenuBarModule module, std::string_view key, Color color) {
    return {key, symbolName(module), {label(module, AppLanguage::cs), label(module, AppLanguage::en)}, color};
}

const std::array<BoundTile, 6>& moduleTiles() {
    static const std::array<BoundTile, 6> tiles{
        tileOf(MenuBarModule::cpu, keys::menubarCPU, colors::blue),
        tileOf(MenuBarModule::mem, keys::menubarMem, colors::purple),
        tileOf(MenuBarModule::battery, keys::menubarBattery, colors::green),
        tileOf(MenuBarModule::temp, keys::menubarTemp, colors::orange),
        tileOf(MenuBarModule::disk, keys::menubarDisk, colors::indigo),
        tileOf(MenuBarModule::network, keys::menubarNetwork, colors::teal)};
    return tiles;
}

class MenuBarSection : public SettingsSection {
public:
    MenuBarSection(PanelContext& context, QWidget* parent)
        : SettingsSection(context, {.cs = "MENU BAR", .en = "MENU BAR"}, parent) {
        addText(TextRole::sectionCaption,
                [this] { return t({.cs = "CO ZOBRAZIT V LIŠTĚ", .en = "WHAT TO SHOW IN THE MENU BAR"}); });
        addTileGrid(*this, context, moduleTiles(), tileLayout);
        addText(TextRole::placeholder, [this] { return layoutCaption(); });
        addAppearance();
        addSwitch(keys::modularMenuBar, {.cs = "Modulární lišta", .en = "Modular Menu Bar"},
                  {.cs = "Samostatná přesunutelná ikonka pro každou statistiku",
                   .en = "A separate, movable icon for each stat"});
        addSwitch(keys::stackedModularLabels, {.cs = "Skládané popisky", .en = "Stacked Labels"},
                  {.cs = "Např. \"CPU\" nad \"42%\" — užší než text v řádku",
                   .en = "e.g. \"CPU\" above \"42%\" — narrower than inline text"});
        if (context.family != SystemFamily::macOS) addHost();
    }

private:
    std::string layoutCaption() const {
        if (context_.settings.modularMenuBar()) {
            return t({.cs = "Každá zapnutá položka dostane vlastní ikonku — najetím myší uvidíš detail.",
                      .en = "Every enabled item gets its own icon — hover it to see the detail."});
        }
        return t({.cs = "Zapnuté položky se sloučí do textu v liště.",
                  .en = "Enabled items are combined into the menu bar text."});
    }

    // Where the system has no status bar of its own for programs to stand in.
    void addHost() {
        auto* picker = new SegmentedControl([this](int index) {
            bindings_.setText(keys::statusBarHost, hosts.at(static_cast<std::size_t>(index)));
        });
        picker->setObjectName(QStringLiteral("statusBarHost"));
        addControl({.cs = "Umístění", .en = "Placement"}, picker, true);
        onRefresh([this, picker] {
            picker->setLabels({t({.cs = "Automaticky", .en = "Automatic"}),
                               t({.cs = "Panel plochy", .en = "Desktop Tray"}),
                               t({.cs = "Vlastní lišta", .en = "Own Bar"})});
            const auto stored = preferenceString(context_.settings.defaults(), keys::statusBarHost);
            const auto* place = std::find(hosts.begin(), hosts.end(), stored);
            picker->setChosen(place == hosts.end() ? 0 : static_cast<int>(place - hosts.begin()));
        });
    }

    void addAppearance() {
        auto* picker = new SegmentedControl([this](int style) { bindings_.set(keys::menuBarStyle, style); });
        picker->setObjectName(QStringLiteral("menuBarStyle"));
        addControl({.cs = "Vzhled", .en = "Appearance"}, picker);
        onRefresh([this, picker] {
            picker->setLabels({"Text", t({.cs = "Graf", .en = "Graph"}), t({.cs = "Ikona", .en = "Icon"})});
            picker->setChosen(static_cast<int>(context_.settings.menuBarStyle()));
        });
    }
};

} // namespace

SettingsSection* makeMenuBarSection(PanelContext& context, QWidget* parent) {
    return new MenuBarSection(context, parent);
}

} // namespace tarvo::ui
