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

TEST(QuickActionMeans, OpenTheHomeFolderAndFallBackToTheGeneralOpener) {
    const auto means = meansFor(QuickAction::newFileManagerWindow, session(Desktop::gnome));
    ASSERT_EQ(means.size(), 2U);
    EXPECT_EQ(means[0].needs, std::vector<std::string>{"dbus-send"});
    EXPECT_EQ(means[0].commands("").front().arguments[6], "array:string:file:///home/jana");
    EXPECT_EQ(means[1].commands(""), (Commands{{"xdg-open", {"/home/jana"}}}));
}

TEST(QuickActionMeans, OpenNoWindowWithoutAHome) {
    EXPECT_TRUE(meansFor(QuickAction::newFileManagerWindow, {Desktop::gnome, false, true, ""}).empty());
}

TEST(QuickActionMeans, SwitchTheColourSchemeToTheOther) {
    const auto gnome = session(Desktop::gnome);
    EXPECT_EQ(firstCommands(QuickAction::toggleDarkMode, gnome, "'prefer-dark'\n"),
              (Commands{{"gsettings", {"set", "org.gnome.desktop.interface", "color-scheme", "default"}}}));
    EXPECT_EQ(
        firstCommands(QuickAction::toggleDarkMode, gnome, "'default'\n"),
        (Commands{{"gsettings", {"set", "org.gnome.desktop.interface", "color-scheme", "prefer-dark"}}}));
    EXPECT_EQ(firstCommands(QuickAction::toggleDarkMode, session(Desktop::cinnamon), "'default'\n")
                  .front()
                  .arguments[1],
              "org.x.apps.portal");
}

TEST(QuickActionMeans, SwitchPlasmaBetweenBreezeLightAndDark) {
    const auto kde = session(Desktop::kde);
    EXPECT_EQ(firstCommands(QuickAction::toggleDarkMode, kde,
                            " * BreezeDark (current color scheme)\n * BreezeLight\n"),
              (Commands{{"plasma-apply-colorscheme", {"BreezeLight"}}}));
    EXPECT_EQ(firstCommands(QuickAction::toggleDarkMode, kde,
                            " * BreezeDark\n * BreezeLight (current color scheme)\n"),
              (Commands{{"plasma-apply-colorscheme", {"BreezeDark"}}}));
}

TEST(QuickActionMeans, SwitchXfceBetweenAThemeAndItsDarkSibling) {
    const auto xfce = session(Desktop::xfce);
    EXPECT_EQ(firstCommands(QuickAction::toggleDarkMode, xfce, "Adwaita\n").front().arguments.back(),
              "Adwaita-dark");
    EXPECT_EQ(firstCommands(QuickAction::toggleDarkMode, xfce, "Adwaita-dark\n").front().arguments.back(),
              "Adwaita");
    EXPECT_TRUE(firstCommands(QuickAction::toggleDarkMode, xfce, "\n").empty());
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
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::sway, true)),
              (Commands{{"swaymsg", {"output * power off"}}}));
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::gnome, true)).front().tool,
              "dbus-send");
    EXPECT_EQ(firstCommands(QuickAction::sleepDisplay, session(Desktop::wlroots, true)),
              (Commands{{"wlopm", {"--off", "*"}}}));
    EXPECT_TRUE(meansFor(QuickAction::sleepDisplay, {Desktop::other, false, false, "/home/jana"}).empty());
}

TEST(QuickActionMeans, RestartTheDefaultFileManagerAndShowItAgain) {
    const auto commands = firstCommands(QuickAction::restartFileManager, session(Desktop::gnome),
                                        "org.gnome.Nautilus.desktop\n");
    ASSERT_EQ(commands.size(), 2U);
    EXPECT_EQ(commands[0], (ToolCommand{"nautilus", {"-q"}}));
    EXPECT_EQ(commands[1].tool, "dbus-send");
    EXPECT_EQ(
        firstCommands(QuickAction::restartFileManager, session(Desktop::kde), "org.kde.dolphin.desktop\n")[0],
        (ToolCommand{"pkill", {"-TERM", "-x", "dolphin"}}));
    EXPECT_TRUE(
        firstCommands(QuickAction::restartFileManager, session(Desktop::gnome), "vim.desktop\n").empty());
}

TEST(QuickActionMeans, NeverEndAShellThatIsThePanel) {
    EXPECT_TRUE(meansFor(QuickAction::restartDock, session(Desktop::gnome)).empty());
    EXPECT_TRUE(meansFor(QuickAction::restartDock, session(Desktop::cinnamon)).empty());
    EXPECT_EQ(firstCommands(QuickAction::restartDock, session(Desktop::xfce)),
              (Commands{{"xfce4-panel", {"-r"}}}));
    EXPECT_EQ(firstCommands(QuickAction::restartDock, session(Desktop::lxqt)).front().tool, "pkill");
    EXPECT_EQ(firstCommands(QuickAction::restartDock, session(Desktop::kde)).front().arguments.back(),
              "plasma-plasmashell.service");
}

} // namespace
} // namespace tarvo::linux_platform
