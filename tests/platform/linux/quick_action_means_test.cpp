#include "platform/linux/quick_action_means.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using Commands = std::vector<ToolCommand>;

DesktopEnvironment session(Desktop desktop, bool wayland = false) {
    return {desktop, wayland, !wayland, "/home/jana"};
}

Commands firstCommands(QuickAction action, const DesktopEnvironment& environment,
                       std::string_view answer = "") {
    const auto means = meansFor(action, environment);
    return means.empty() ? Commands{} : means.front().commands(answer);
}

TEST(QuickActionMeans, EmptyTheTrashByTheDesktopsOwnTool) {
    EXPECT_EQ(firstCommands(QuickAction::emptyTrash, session(Desktop::other)),
              (Commands{{"gio", {"trash", "--empty"}}}));
}

TEST(QuickActionMeans, OpenNoWindowWithoutAHome) {
    EXPECT_TRUE(meansFor(QuickAction::newFileManagerWindow, {Desktop::gnome, false, true, ""}).empty());
}

TEST(QuickActionMeans, HaveNoDarkModeWhereTheDesktopHasNone) {
    EXPECT_TRUE(meansFor(QuickAction::toggleDarkMode, session(Desktop::other)).empty());
    EXPECT_TRUE(meansFor(QuickAction::toggleDarkMode, session(Desktop::sway, true)).empty());
}

TEST(QuickActionMeans, TurnTheDisplayOffByTheSessionsMeans) {
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::other)),
              (Commands{{"xset", {"dpms", "force", "off"}}}));
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::kde, true)),
              (Commands{{"kscreen-doctor", {"--dpms", "off"}}}));
    EXPECT_EQ(meansFor(QuickAction::sleepDisplay, session(Desktop::kde, true)).size(), 2U);
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::sway, true)),
              (Commands{{"swaymsg", {"output * power off"}}}));
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::gnome, true)).front().tool,
              "dbus-send");
    const auto gnome = meansFor(QuickAction::sleepDisplay, session(Desktop::gnome));
    ASSERT_EQ(gnome.size(), 2U);
    EXPECT_EQ(gnome[1].commands("").front().tool, "dbus-send");
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::wlroots, true)),
              (Commands{{"wlopm", {"--off", "*"}}}));
    EXPECT_TRUE(meansFor(QuickAction::sleepDisplay, {Desktop::other, false, false, "/home/jana"}).empty());
}

TEST(QuickActionMeans, NeverEndAShellThatIsThePanel) {
    EXPECT_TRUE(meansFor(QuickAction::restartDock, session(Desktop::gnome)).empty());
    EXPECT_TRUE(meansFor(QuickAction::restartDock, session(Desktop::cinnamon)).empty());
    EXPECT_EQ(firstCommands(QuickAction::restartDock, session(Desktop::xfce)),
              (Commands{{"xfce4-panel", {"-r"}}}));
    EXPECT_EQ(firstCommands(QuickAction::restartDock, session(Desktop::lxqt)),
              (Commands{{"pkill", {"-TERM", "-u", "0", "-x", "lxqt-panel"}}}));
    EXPECT_EQ(firstCommands(QuickAction::restartDock, session(Desktop::mate)),
              (Commands{{"mate-panel", {"--replace"}, true}}));
    const auto plasma = meansFor(QuickAction::restartDock, session(Desktop::kde));
    ASSERT_EQ(plasma.size(), 2U);
    EXPECT_EQ(plasma[1].commands(""), (Commands{{"plasmashell", {"--replace"}, true}}));
    EXPECT_EQ(firstCommands(QuickAction::restartDock, session(Desktop::kde)).front().arguments.back(),
              "plasma-plasmashell.service");
}

} // namespace
} // namespace tarvo::linux_platform
