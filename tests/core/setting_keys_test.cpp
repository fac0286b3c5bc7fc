#include "core/menu_bar_module.h"
#include "core/setting_keys.h"

#include <gmock/gmock.h>

#include <set>
#include <string>

namespace tarvo {
namespace {

TEST(SettingTable, NoKeyStandsTwice) {
    std::set<std::string_view> keys;
    for (const auto& row : settingTable())
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
    EXPECT_EQ(keys.size(), 31U);
}

TEST(SettingTable, EveryModuleHasAKey) {
    for (const auto module : allMenuBarModules) {
        const auto key = "menubar." + std::string(rawValue(module));
        ASSERT_NE(findSetting(key), nullptr) << key;
        EXPECT_TRUE(std::holds_alternative<bool>(findSetting(key)->initial)) << key;
    }
}

TEST(SettingTable, OnlyTheIntervalAndTwoThresholdsRefuseZero) {
    std::vector<std::string_view> refusing;
    for (const auto& row : settingTable()) {
        if (row.rule == SettingRule::onlyPositive) refusing.push_back(row.key);
    }
    EXPECT_THAT(refusing,
                testing::ElementsAre("refreshInterval", "cpuAlertThreshold", "batteryAlertPercent"));
}

TEST(SettingTable, AnUnknownKeyHasNoRow) {
    EXPECT_EQ(findSetting("show.nothing"), nullptr);
    EXPECT_EQ(findSetting(""), nullptr);
}

} // namespace
} // namespace tarvo
