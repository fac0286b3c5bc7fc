#pragma once

#include "core/notification_center.h"
#include "core/settings.h"
#include "core/stats_model.h"
#include "history/history_sample.h"
#include "localization/localization_manager.h"
#include "platform/system_family.h"
#include "sensors/bluetooth_battery_monitor.h"
#include "ui/elements/app_icon_cache.h"
#include "update/update_info.h"

#include <QWidget>

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::ui {

/// Posted when what became of the hot key has changed.
inline constexpr std::string_view hotKeyStateChanged = "hotKeyStateChanged";

/// What the pages work with; references outlive them. A function may be left empty: what it would give or do
/// is then left out.
struct PanelContext {
    StatsModel& model;
    Settings& settings;
    LocalizationManager& loc;
    NotificationCenter& notifications;
    AppIconCache& icons;
    SystemFamily family = SystemFamily::other;
    std::string versionText; ///< "v1.2.3", shown in the footer

    Published<std::optional<UpdateInfo>>* availableUpdate = nullptr;
    BluetoothBatteryMonitor* bluetoothBattery = nullptr;
    /// Stored samples of the last hours.
    std::function<std::vector<HistorySample>(double lastHours)> historySamples = {};
    /// When the newest stored sample was taken: tells whether a chart is out of date.
    std::function<WallTime()> lastHistorySample = {};

    std::function<void()> openDetailWindow = {};
    std::function<void()> quit = {};
    std::function<void(const std::string& address)> openLink = {};
    /// Asks the user, then ends the process.
    std::function<void(const ProcInfo&)> confirmKill = {};
    /// Cards that live elsewhere, complete with their background; the parent takes them. Null: no card now.
    std::function<QWidget*(QWidget* parent)> makeQuickActionsCard = {};
    std::function<QWidget*(QWidget* parent)> makeAutomationsCard = {};
    std::function<QWidget*(QWidget* parent)> makeAutomationsSettingsCard = {};
    /// Whether the program starts with the session; absent functions leave the switch out.
    std::function<bool()> launchesAtLogin = {};
    std::function<void(bool)> setLaunchAtLogin = {};
    /// Asks the user for the permission to read the Wi-Fi network's name, where the system has one.
    std::function<void()> askForNetworkName = {};
    /// What became of the hot key, in a sentence; read again after hotKeyStateChanged.
    std::function<std::string()> hotKeyText = {};
};

} // namespace tarvo::ui
