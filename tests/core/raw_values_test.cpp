#include "core/accent_theme.h"
#include "core/menu_bar_module.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

TEST(MenuBarModule, TheModulesHaveTheirNamesAndOrder) {
    std::vector<std::string_view> names;
    for (const auto module : allMenuBarModules)
        names.push_back(rawValue(module));
    EXPECT_THAT(names, testing::ElementsAre("cpu", "mem", "battery", "temp", "disk", "network"));
}

TEST(MenuBarModule, EveryNameLeadsBackToItsModule) {
    for (const auto module : allMenuBarModules)
        EXPECT_EQ(menuBarModule(rawValue(module)), module);
}

TEST(MenuBarModule, AnyOtherTextIsNoModule) {
    EXPECT_FALSE(menuBarModule(""));
    EXPECT_FALSE(menuBarModule("CPU"));
    EXPECT_FALSE(menuBarModule("memory"));
}

TEST(AccentTheme, TheThemesHaveTheirNamesAndOrder) {
    std::vector<std::string_view> names;
    for (const auto theme : allAccentThemes)
        names.push_back(rawValue(theme));
    EXPECT_THAT(names,
                testing::ElementsAre("blue", "purple", "green", "orange", "pink", "red", "teal", "graphite"));
}

TEST(AccentTheme, EveryNameLeadsBackToItsTheme) {
    for (const auto theme : allAccentThemes)
        EXPECT_EQ(accentTheme(rawValue(theme)), theme);
}

TEST(AccentTheme, AnyOtherTextIsNoTheme) {
    EXPECT_FALSE(accentTheme(""));
    EXPECT_FALSE(accentTheme("Blue"));
    EXPECT_FALSE(accentTheme("yellow"));
}

} // namespace
} // namespace tarvo
