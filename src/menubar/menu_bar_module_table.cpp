#include "menubar/menu_bar_module_table.h"

#include "localization/localization_manager.h"

#include <array>

namespace tarvo {
namespace {

struct Row {
    MenuBarModule module;
    LKey label;
    std::string_view symbol;
};

constexpr std::array rows{
    Row{MenuBarModule::cpu, {.cs = "CPU", .en = "CPU"}, "cpu.fill"},
    Row{MenuBarModule::mem, {.cs = "Paměť", .en = "Memory"}, "memorychip.fill"},
    Row{MenuBarModule::battery, {.cs = "Baterie", .en = "Battery"}, "battery.100percent"},
    Row{MenuBarModule::temp, {.cs = "Teplota", .en = "Temperature"}, "thermometer.medium"},
    Row{MenuBarModule::disk, {.cs = "Disk", .en = "Disk"}, "internaldrive.fill"},
    Row{MenuBarModule::network, {.cs = "Síť", .en = "Network"}, "network"},
};

constexpr bool rowsFollowTheModules() {
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (rows[i].module != allMenuBarModules[i]) return false;
    }
    return rows.size() == allMenuBarModules.size();
}
static_assert(rowsFollowTheModules());

constexpr const Row& rowOf(MenuBarModule module) {
    return rows[static_cast<std::size_t>(module)];
}

} // namespace

std::string_view label(MenuBarModule module, AppLanguage language) {
    const auto& texts = rowOf(module).label;
    return language == AppLanguage::cs ? texts.cs : texts.en;
}

std::string_view symbolName(MenuBarModule module) {
    return rowOf(module).symbol;
}

} // namespace tarvo
