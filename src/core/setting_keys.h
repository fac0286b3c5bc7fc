#pragma once

#include <span>
#include <string_view>
#include <variant>

/// The names of all preferences. Their types and defaults are the rows of settingTable().
namespace tarvo::keys {

inline constexpr std::string_view refreshInterval = "refreshInterval";
inline constexpr std::string_view notificationsEnabled = "notificationsEnabled";
inline constexpr std::string_view cpuAlertThreshold = "cpuAlertThreshold";
inline constexpr std::string_view diskFreeAlertGB = "diskFreeAlertGB";
inline constexpr std::string_view batteryAlertPercent = "batteryAlertPercent";
inline constexpr std::string_view temperatureUnit = "temperatureUnit";
inline constexpr std::string_view menuBarStyle = "menuBarStyle";
inline constexpr std::string_view modularMenuBar = "modularMenuBar";
inline constexpr std::string_view stackedModularLabels = "stackedModularLabels";
inline constexpr std::string_view menubarCPU = "menubar.cpu";
inline constexpr std::string_view menubarMem = "menubar.mem";
inline constexpr std::string_view menubarBattery = "menubar.battery";
inline constexpr std::string_view menubarTemp = "menubar.temp";
inline constexpr std::string_view menubarDisk = "menubar.disk";
inline constexpr std::string_view menubarNetwork = "menubar.network";
inline constexpr std::string_view accentTheme = "accentTheme";
inline constexpr std::string_view wifiSSIDEnabled = "wifiSSIDEnabled";
inline constexpr std::string_view showGauges = "show.gauges";
inline constexpr std::string_view showHistory = "show.history";
inline constexpr std::string_view showTemps = "show.temps";
inline constexpr std::string_view showPower = "show.power";
inline constexpr std::string_view showDisk = "show.disk";
inline constexpr std::string_view showNetwork = "show.network";
inline constexpr std::string_view showIPs = "show.ips";
inline constexpr std::string_view showBattery = "show.battery";
inline constexpr std::string_view showCores = "show.cores";
inline constexpr std::string_view showProcesses = "show.processes";
inline constexpr std::string_view showQuickActions = "show.quickActions";
inline constexpr std::string_view showNetProcesses = "show.netProcesses";
inline constexpr std::string_view showTimeMachine = "show.timeMachine";
inline constexpr std::string_view showBluetoothBattery = "show.bluetoothBattery";
// Without a fixed default: read by the classes that own them.
inline constexpr std::string_view appLanguage = "appLanguage";         ///< text; see LocalizationManager
inline constexpr std::string_view customShortcuts = "customShortcuts"; ///< list of texts, empty until written
inline constexpr std::string_view lastUpdateCheck = "lastUpdateCheck"; ///< date, absent until written
inline constexpr std::string_view statusBarHost =
    "statusBarHost"; ///< "auto", "tray" or "bar"; auto until written

} // namespace tarvo::keys

namespace tarvo {

/// What a key reads as until it is written; the alternative is also the type it is stored with.
using SettingDefault = std::variant<bool, int, double, std::string_view>;

enum class SettingRule {
    asStored,    ///< a stored value is returned as it is
    onlyPositive ///< a stored number that is not greater than 0 reads as the default
};

struct Setting {
    std::string_view key;
    SettingDefault initial;
    SettingRule rule = SettingRule::asStored;
};

/// Every preference that has a fixed default.
std::span<const Setting> settingTable();
/// The row of a key, null for a key that is not in the table.
const Setting* findSetting(std::string_view key);

} // namespace tarvo
