#include "platform/linux/quick_action_means.h"

#include "platform/linux/dark_mode_means.h"
#include "platform/linux/file_manager_means.h"

#include <fmt/format.h>

#include <utility>

namespace tarvo::linux_platform {
namespace {

using Commands = std::vector<ToolCommand>;

/// A tool that needs no question.
ActionMeans plain(const ToolCommand& command) {
    return {{command.tool}, {}, std::nullopt, [command](std::string_view) { return Commands{command}; }};
}

ActionMeans plain(std::string tool, std::vector<std::string> arguments) {
    return plain(ToolCommand{std::move(tool), std::move(arguments)});
}

/// Asks a program on the session bus.
ActionMeans ask(const std::string& service, const std::string& object, const std::string& method,
                const std::string& argument) {
    return plain("dbus-send", {"--session", "--print-reply", "--reply-timeout=5000", "--dest=" + service,
                               object, method, argument});
}

std::vector<ActionMeans> displaySleep(const DesktopEnvironment& environment) {
    const auto lockScreen = ask("org.gnome.ScreenSaver", "/org/gnome/ScreenSaver",
                                "org.gnome.ScreenSaver.SetActive", "boolean:true");
    if (environment.isX11) {
        std::vector<ActionMeans> means{plain("xset", {"dpms", "force", "off"})};
        if (environment.desktop == Desktop::gnome) means.push_back(lockScreen);
        return means;
    }
    if (!environment.isWayland) return {};
    switch (environment.desktop) {
    case Desktop::kde:
        return {plain("kscreen-doctor", {"--dpms", "off"}),
                ask("org.kde.kglobalaccel", "/component/org_kde_powerdevil",
                    "org.kde.kglobalaccel.Component.invokeShortcut", "string:Turn Off Screen")};
    case Desktop::sway:
        return {plain("swaymsg", {"output * power off"})};
    case Desktop::gnome:
        return {lockScreen};
    default:
        return {plain("wlopm", {"--off", "*"})};
    }
}

/// On GNOME and Cinnamon the panel is the shell itself: ending it may end the session, so there is no means.
std::vector<ActionMeans> restartPanel(const DesktopEnvironment& environment) {
    switch (environment.desktop) {
    case Desktop::kde:
        return {plain("systemctl", {"--user", "restart", "plasma-plasmashell.service"}),
                plain({"plasmashell", {"--replace"}, true})};
    case Desktop::xfce:
        return {plain("xfce4-panel", {"-r"})};
    case Desktop::mate:
        return {plain({"mate-panel", {"--replace"}, true})};
    case Desktop::lxqt:
        return {plain(endCommand("lxqt-panel", environment.userId))};
    default:
        return {};
    }
}

} // namespace

ToolCommand endCommand(const std::string& name, unsigned userId) {
    return {"pkill", {"-TERM", "-u", fmt::format("{}", userId), "-x", name}};
}

std::vector<ActionMeans> meansFor(QuickAction action, const DesktopEnvironment& environment) {
    switch (action) {
    case QuickAction::emptyTrash:
        return {plain("gio", {"trash", "--empty"})};
    case QuickAction::restartFileManager:
        return restartFileManagerMeans(environment);
    case QuickAction::restartDock:
        return restartPanel(environment);
    case QuickAction::sleepDisplay:
        return displaySleep(environment);
    case QuickAction::toggleDarkMode:
        return darkModeMeans(environment);
    case QuickAction::newFileManagerWindow:
        return newWindowMeans(environment);
    }
    return {};
}

} // namespace tarvo::linux_platform
