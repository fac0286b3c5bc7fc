#include "core/setting_keys.h"

#include <algorithm>
#include <array>

namespace tarvo {
namespace {

using enum SettingRule;

constexpr std::array table{
    Setting{keys::refreshInterval, 2.0, onlyPositive}, // seconds
    Setting{keys::notificationsEnabled, true},
    Setting{keys::cpuAlertThreshold, 90.0, onlyPositive}, // percent
    Setting{keys::diskFreeAlertGB, 10.0},                 // a limit of 0 is a choice: never alert
    Setting{keys::batteryAlertPercent, 20.0, onlyPositive},
    Setting{keys::temperatureUnit, 0}, // 1: Fahrenheit
    Setting{keys::menuBarStyle, 0},
    Setting{keys::modularMenuBar, false},
    Setting{keys::stackedModularLabels, false},
    Setting{keys::menubarCPU, true},
    Setting{keys::menubarMem, true},
    Setting{keys::menubarBattery, false},
    Setting{keys::menubarTemp, false},
    Setting{keys::menubarDisk, false},
    Setting{keys::menubarNetwork, false},
    Setting{keys::accentTheme, std::string_view("blue")},
    Setting{keys::wifiSSIDEnabled, false},
    Setting{keys::showGauges, true},
    Setting{keys::showHistory, true},
    Setting{keys::showTemps, true},
    Setting{keys::showPower, true},
    Setting{keys::showDisk, true},
    Setting{keys::showNetwork, true},
    Setting{keys::showIPs, false},
    Setting{keys::showBattery, true},
    Setting{keys::showCores, false},
    Setting{keys::showProcesses, true},
    Setting{keys::showQuickActions, true},
    Setting{keys::showNetProcesses, false},
    Setting{keys::showTimeMachine, false},
    Setting{keys::showBluetoothBattery, false},
};

} // namespace

std::span<const Setting> settingTable() {
    return table;
}

const Setting* findSetting(std::string_view key) {
    const auto* found =
        std::find_if(table.begin(), table.end(), [key](const Setting& row) { return row.key == key; });
    return found == table.end() ? nullptr : found;
}

} // namespace tarvo
