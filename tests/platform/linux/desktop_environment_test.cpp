#include "platform/linux/desktop_environment.h"

#include <gtest/gtest.h>

#include <map>

namespace tarvo::linux_platform {
namespace {

DesktopEnvironment environmentOf(const std::map<std::string, std::string>& variables) {
    return desktopEnvironment([&](const char* name) {
        const auto found = variables.find(name);
        return found == variables.end() ? std::nullopt : std::optional(found->second);
    });
}

TEST(DesktopEnvironment, TakesTheFirstKnownNameOfTheList) {
    EXPECT_EQ(environmentOf({{"XDG_CURRENT_DESKTOP", "ubuntu:GNOME"}}).desktop, Desktop::gnome);
    EXPECT_EQ(environmentOf({{"XDG_CURRENT_DESKTOP", "KDE"}}).desktop, Desktop::kde);
    EXPECT_EQ(environmentOf({{"XDG_CURRENT_DESKTOP", "X-Cinnamon"}}).desktop, Desktop::cinnamon);
    EXPECT_EQ(environmentOf({{"XDG_CURRENT_DESKTOP", "Hyprland"}}).desktop, Desktop::wlroots);
}

TEST(DesktopEnvironment, IsAnotherOneWithoutAKnownName) {
    EXPECT_EQ(environmentOf({}).desktop, Desktop::other);
    EXPECT_EQ(environmentOf({{"XDG_CURRENT_DESKTOP", ""}}).desktop, Desktop::other);
    EXPECT_EQ(environmentOf({{"XDG_CURRENT_DESKTOP", "::openbox:"}}).desktop, Desktop::other);
}

TEST(DesktopEnvironment, IsX11OnlyWithoutWayland) {
    EXPECT_TRUE(environmentOf({{"DISPLAY", ":0"}}).isX11);
    const auto both = environmentOf({{"DISPLAY", ":0"}, {"WAYLAND_DISPLAY", "wayland-0"}});
    EXPECT_TRUE(both.isWayland);
    EXPECT_FALSE(both.isX11);
    EXPECT_FALSE(environmentOf({{"DISPLAY", ""}}).isX11);
}

TEST(DesktopEnvironment, KnowsWhereThemesAreTheUsersOwnFirst) {
    EXPECT_EQ(environmentOf({{"HOME", "/home/jana"}}).themeFolders,
              (std::vector<std::string>{"/home/jana/.themes", "/home/jana/.local/share/themes",
                                        "/usr/local/share/themes", "/usr/share/themes"}));
    EXPECT_EQ(environmentOf({{"XDG_DATA_HOME", "/data"}, {"XDG_DATA_DIRS", "/a::relative:/b"}}).themeFolders,
              (std::vector<std::string>{"/data/themes", "/a/themes", "/b/themes"}));
}

TEST(DesktopEnvironment, IgnoresAHomeThatIsNotAbsolute) {
    EXPECT_EQ(environmentOf({{"HOME", "/home/jana"}}).home, "/home/jana");
    EXPECT_EQ(environmentOf({{"HOME", "home"}}).home, "");
}

} // namespace
} // namespace tarvo::linux_platform
