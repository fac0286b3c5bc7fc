#include "ui/pages/settings_sections.h"
#include "ui/pages/tile_grid.h"

#include <array>

namespace tarvo::ui {
namespace {

constexpr TileLayout tileLayout{4, 2};

constexpr BoundTile backupTile(const LKey& label) {
    return {keys::showTimeMachine, "clock.arrow.circlepath", label, colors::green};
}

constexpr std::array<BoundTile, 14> tiles(const LKey& backupLabel) {
    return {{{keys::showGauges,
              "gauge.with.dots.needle.67percent",
              {.cs = "Ukazatele", .en = "Gauges"},
              colors::blue},
             {keys::showHistory,
              "chart.xyaxis.line",
              {.cs = "Graf historie", .en = "History Graph"},
              colors::purple},
             {keys::showTemps, "thermometer.medium", {.cs = "Teploty", .en = "Temperatures"}, colors::orange},
             {keys::showPower, "bolt.fill", {.cs = "Příkon", .en = "Power"}, colors::yellow},
             {keys::showDisk, "internaldrive.fill", {.cs = "Disk", .en = "Disk"}, colors::indigo},
             {keys::showNetwork, "globe", {.cs = "Síť", .en = "Network"}, colors::teal},
             {keys::showIPs, "house.fill", {.cs = "IP adresy", .en = "IP Addresses"}, colors::indigo},
             {keys::showBattery, "battery.100percent", {.cs = "Baterie", .en = "Battery"}, colors::green},
             {keys::showCores, "cpu.fill", {.cs = "Jádra CPU", .en = "CPU Cores"}, colors::blue},
             {keys::showProcesses,
              "list.number",
              {.cs = "Nejnáročnější procesy", .en = "Top Processes"},
              colors::pink},
             {keys::showQuickActions,
              "bolt.horizontal.fill",
              {.cs = "Rychlé akce", .en = "Quick Actions"},
              colors::red},
             {keys::showNetProcesses,
              "network.badge.shield.half.filled",
              {.cs = "Síť po procesech", .en = "Network by Process"},
              colors::teal},
             backupTile(backupLabel),
             {keys::showBluetoothBattery,
              "battery.75percent",
              {.cs = "Bluetooth příslušenství", .en = "Bluetooth Accessories"},
              colors::blue}}};
}

constexpr auto macTiles = tiles({.cs = "Time Machine", .en = "Time Machine"});
constexpr auto otherTiles = tiles({.cs = "Zálohování", .en = "Backup"});

constexpr LKey locationNote{.cs = "Vyžaduje oprávnění Poloha (Apple to vyžaduje u SSID od macOS 14). Appka "
                                  "polohu nikam neukládá ani neodesílá.",
                            .en = "Requires Location permission (Apple requires this for SSID access since "
                                  "macOS 14). The app never stores or "
                                  "sends your location."};
constexpr LKey networkServiceNote{
    .cs = "Název se čte ze síťové služby systému. Appka ho nikam neukládá ani neodesílá.",
    .en = "The name is read from the system's network service. The app never stores or sends it."};

} // namespace

SettingsSection* makePanelSection(PanelContext& context, QWidget* parent) {
    const bool isMac = context.family == SystemFamily::macOS;
    auto* section =
        new SettingsSection(context, {.cs = "V PANELU PO ROZKLIKNUTÍ", .en = "IN THE PANEL"}, parent);
    section->addCaption(
        {.cs = "Co se zobrazí, když na ikonku klikneš", .en = "What shows up when you click the icon"});
    addTileGrid(*section, context, isMac ? macTiles : otherTiles, tileLayout);
    section->addSwitch(keys::wifiSSIDEnabled,
                       {.cs = "Zobrazit název Wi-Fi sítě", .en = "Show Wi-Fi network name"},
                       isMac ? locationNote : networkServiceNote, context.askForNetworkName);
    return section;
}

} // namespace tarvo::ui
