#include "platform/linux/quick_action_means.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tarvo::linux_platform {
namespace {

using Commands = std::vector<ToolCommand>;

/// A tool that needs no question.
ActionMeans plain(std::string tool, std::vector<std::string> arguments) {
    return {{tool}, {}, std::nullopt, [command = ToolCommand{tool, std::move(arguments)}](std::string_view) {
                return Commands{command};
            }};
}

ToolCommand showFolder(const std::string& home) {
    return {"dbus-send",
            {"--session", "--print-reply", "--reply-timeout=5000", "--dest=org.freedesktop.FileManager1",
             "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1.ShowFolders",
             "array:string:file://" + home, "string:"}};
}

std::vector<ActionMeans> newWindow(const DesktopEnvironment& environment) {
    if (environment.home.empty()) return {};
    const auto show = showFolder(environment.home);
    return {plain(show.tool, show.arguments), plain("xdg-open", {environment.home})};
}

std::vector<ActionMeans> displaySleep(const DesktopEnvironment& environment) {
    if (environment.isX11) return {plain("xset", {"dpms", "force", "off"})};
    if (!environment.isWayland) return {};
    switch (environment.desktop) {
    case Desktop::kde:
        return {plain("kscreen-doctor", {"--dpms", "off"})};
    case Desktop::sway:
        return {plain("swaymsg", {"output * power off"})};
    case Desktop::gnome:
        return {plain("dbus-send",
                      {"--session", "--print-reply", "--dest=org.gnome.ScreenSaver", "/org/gnome/ScreenSaver",
                       "org.gnome.ScreenSaver.SetActive", "boolean:true"})};
    default:
        return {plain("wlopm", {"--off", "*"})};
    }
}

/// GSettings prints a string in single quotes.
bool answersDark(std::string_view answer) {
    return answer.find("dark") != std::string_view::npos;
}

ActionMeans colorSchemeSetting(const std::string& schema) {
    return {{"gsettings"},
            {},
            ToolCommand{"gsettings", {"get", schema, "color-scheme"}},
            [schema](std::string_view answer) {
                const std::string wanted = answersDark(answer) ? "default" : "prefer-dark";
                return Commands{{"gsettings", {"set", schema, "color-scheme", wanted}}};
            }};
}

ActionMeans kdeColorScheme() {
    return {{"plasma-apply-colorscheme"},
            {},
            ToolCommand{"plasma-apply-colorscheme", {"--list-schemes"}},
            [](std::string_view answer) {
                const bool isDark = answer.find("BreezeDark (current") != std::string_view::npos;
                return Commands{{"plasma-apply-colorscheme", {isDark ? "BreezeLight" : "BreezeDark"}}};
            }};
}

ActionMeans xfceTheme() {
    return {{"xfconf-query"},
            {},
            ToolCommand{"xfconf-query", {"-c", "xsettings", "-p", "/Net/ThemeName"}},
            [](std::string_view answer) {
                constexpr std::string_view suffix = "-dark";
                while (!answer.empty() && answer.back() == '\n')
                    answer.remove_suffix(1);
                if (answer.empty()) return Commands{};
                const std::string other = answer.ends_with(suffix)
                                              ? std::string(answer.substr(0, answer.size() - suffix.size()))
                                              : std::string(answer) + std::string(suffix);
                return Commands{{"xfconf-query", {"-c", "xsettings", "-p", "/Net/ThemeName", "-s", other}}};
            }};
}

std::vector<ActionMeans> darkMode(const DesktopEnvironment& environment) {
    switch (environment.desktop) {
    case Desktop::gnome:
        return {colorSchemeSetting("org.gnome.desktop.interface")};
    case Desktop::cinnamon:
        return {colorSchemeSetting("org.x.apps.portal")};
    case Desktop::kde:
        return {kdeColorScheme()};
    case Desktop::xfce:
        return {xfceTheme()};
    default:
        return {};
    }
}

struct FileManager {
    std::string_view desktopFile; ///< part of the default handler's desktop file name
    std::string_view tool;
    std::string_view quitOption; ///< empty: asked to end by pkill
};

constexpr std::array<FileManager, 6> fileManagers = {{
    {"nautilus", "nautilus", "-q"},
    {"nemo", "nemo", "-q"},
    {"caja", "caja", "-q"},
    {"thunar", "thunar", "-q"},
    {"pcmanfm", "pcmanfm-qt", ""},
    {"dolphin", "dolphin", ""},
}};

Commands restartOf(std::string_view handler, const std::string& home) {
    std::string lower(handler);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    for (const auto& manager : fileManagers) {
        if (lower.find(manager.desktopFile) == std::string::npos) continue;
        const std::string tool(manager.tool);
        // It comes back only on demand, so a window is asked for afterwards.
        const ToolCommand quit = manager.quitOption.empty()
                                     ? ToolCommand{"pkill", {"-TERM", "-x", tool}}
                                     : ToolCommand{tool, {std::string(manager.quitOption)}};
        return {quit, showFolder(home)};
    }
    return {};
}

std::vector<ActionMeans> restartFileManager(const DesktopEnvironment& environment) {
    std::vector<std::string> known;
    for (const auto& manager : fileManagers)
        known.emplace_back(manager.tool);
    return {{{"xdg-mime", "dbus-send"},
             known,
             ToolCommand{"xdg-mime", {"query", "default", "inode/directory"}},
             [home = environment.home](std::string_view answer) { return restartOf(answer, home); }}};
}

/// On GNOME and Cinnamon the panel is the shell itself: ending it may end the session, so there is no means.
std::vector<ActionMeans> restartPanel(const DesktopEnvironment& environment) {
    switch (environment.desktop) {
    case Desktop::kde:
        return {plain("systemctl", {"--user", "restart", "plasma-plasmashell.service"})};
    case Desktop::xfce:
        return {plain("xfce4-panel", {"-r"})};
    case Desktop::lxqt:
        return {plain("pkill", {"-TERM", "-x", "lxqt-panel"})};
    default:
        return {};
    }
}

} // namespace

std::vector<ActionMeans> meansFor(QuickAction action, const DesktopEnvironment& environment) {
    switch (action) {
    case QuickAction::emptyTrash:
        return {plain("gio", {"trash", "--empty"})};
    case QuickAction::restartFileManager:
        return restartFileManager(environment);
    case QuickAction::restartDock:
        return restartPanel(environment);
    case QuickAction::sleepDisplay:
        return displaySleep(environment);
    case QuickAction::toggleDarkMode:
        return darkMode(environment);
    case QuickAction::newFileManagerWindow:
        return newWindow(environment);
    }
    return {};
}

} // namespace tarvo::linux_platform
