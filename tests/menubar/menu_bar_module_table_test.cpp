#include "menubar/menu_bar_module_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvo {
namespace {

std::vector<std::string> labels(AppLanguage language) {
    std::vector<std::string> result;
    for (const auto module : allMenuBarModules)
        result.emplace_back(label(module, language));
    return result;
}

TEST(MenuBarModuleTable, StoresTheModulesUnderTheirRawValuesInOrder) {
    std::vector<std::string> values;
    for (const auto module : allMenuBarModules)
        values.emplace_back(rawValue(module));
    EXPECT_THAT(values, testing::ElementsAre("cpu", "mem", "battery", "temp", "disk", "network"));
}

TEST(MenuBarModuleTable, DecodesEveryRawValueAndNothingElse) {
    for (const auto module : allMenuBarModules)
        EXPECT_EQ(menuBarModule(rawValue(module)), module);
    for (const auto* text : {"", "CPU", "cpu ", "gpu", "memory"})
        EXPECT_EQ(menuBarModule(text), std::nullopt) << text;
}

TEST(MenuBarModuleTable, NamesTheModulesInBothLanguages) {
    EXPECT_THAT(labels(AppLanguage::en),
                testing::ElementsAre("CPU", "Memory", "Battery", "Temperature", "Disk", "Network"));
    EXPECT_THAT(labels(AppLanguage::cs),
                testing::ElementsAre("CPU", "Paměť", "Baterie", "Teplota", "Disk", "Síť"));
}

TEST(MenuBarModuleTable, GivesEachModuleItsSymbol) {
    std::vector<std::string> symbols;
    for (const auto module : allMenuBarModules)
        symbols.emplace_back(symbolName(module));
    EXPECT_THAT(symbols, testing::ElementsAre("cpu.fill", "memorychip.fill", "battery.100percent",
                                              "thermometer.medium", "internaldrive.fill", "network"));
}

} // namespace
} // namespace tarvo
