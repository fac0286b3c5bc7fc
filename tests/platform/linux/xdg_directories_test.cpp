#include "platform/linux/xdg_directories.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvo::linux_platform {
namespace {

Environment with(std::map<std::string, std::string> variables) {
    return [variables = std::move(variables)](const std::string& name) -> std::optional<std::string> {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    };
}

TEST(XDGDirectories, LieInTheHomeFolderUnlessSaidOtherwise) {
    const auto environment = with({{"HOME", "/home/eva"}});
    EXPECT_EQ(configHome(environment), "/home/eva/.config");
    EXPECT_EQ(dataHome(environment), "/home/eva/.local/share");
    EXPECT_EQ(preferenceFilePath(environment), "/home/eva/.config/tarvo/preferences.json");
    EXPECT_EQ(applicationDataFolder(environment), "/home/eva/.local/share/Tarvo");
    EXPECT_EQ(autostartFilePath(environment), "/home/eva/.config/autostart/tarvo.desktop");
}

TEST(XDGDirectories, AbsoluteVariablesAreFollowed) {
    const auto environment =
        with({{"HOME", "/home/eva"}, {"XDG_CONFIG_HOME", "/c"}, {"XDG_DATA_HOME", "/d/"}});
    EXPECT_EQ(configHome(environment), "/c");
    EXPECT_EQ(dataHome(environment), "/d");
    EXPECT_EQ(homeDirectory(environment), "/home/eva");
}

TEST(XDGDirectories, RelativeAndEmptyVariablesAreIgnored) {
    for (const char* ignored : {"", "config", "./config", "~/config", "../c"}) {
        const auto environment =
            with({{"HOME", "/home/eva"}, {"XDG_CONFIG_HOME", ignored}, {"XDG_DATA_HOME", ignored}});
        EXPECT_EQ(configHome(environment), "/home/eva/.config") << ignored;
        EXPECT_EQ(dataHome(environment), "/home/eva/.local/share") << ignored;
    }
}

TEST(XDGDirectories, WithoutAHomeVariableTheUserDatabaseIsAsked) {
    const auto home = homeDirectory(with({}));
    EXPECT_EQ(home, homeDirectory(with({{"HOME", "relative"}})));
    if (home) {
        EXPECT_TRUE(home->starts_with('/'));
    }
}

} // namespace
} // namespace tarvo::linux_platform
