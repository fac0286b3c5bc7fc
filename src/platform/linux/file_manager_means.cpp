#include "platform/linux/file_manager_means.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>

namespace tarvo::linux_platform {
namespace {

using Commands = std::vector<ToolCommand>;

struct FileManager {
    std::string_view desktopFile; ///< part of the default handler's desktop file name, in small letters
    std::string_view tool;
    std::string_view quitOption; ///< empty: asked to end by a signal
    Desktop desktop;             ///< whose own one it is
};

constexpr std::array<FileManager, 7> restartable = {{
    {"nautilus", "nautilus", "-q", Desktop::gnome},
    {"nemo", "nemo", "-q", Desktop::cinnamon},
    {"caja", "caja", "-q", Desktop::mate},
    {"thunar", "thunar", "-q", Desktop::xfce},
    {"pcmanfm-qt", "pcmanfm-qt", "", Desktop::lxqt},
    {"pcmanfm", "pcmanfm", "", Desktop::other},
    {"dolphin", "dolphin", "", Desktop::kde},
}};

/// File managers that are only asked for a window.
constexpr std::array<std::string_view, 8> others = {
    "io.elementary.files", "cosmic-files", "peony", "konqueror", "krusader", "spacefm", "doublecmd", "xfe"};

std::vector<std::string> restartableTools() {
    std::vector<std::string> tools;
    for (const auto& manager : restartable)
        tools.emplace_back(manager.tool);
    return tools;
}

std::vector<std::string> allTools() {
    auto tools = restartableTools();
    tools.insert(tools.end(), others.begin(), others.end());
    return tools;
}

ToolCommand showFolder(const std::string& home) {
    return {"dbus-send",
            {"--session", "--print-reply", "--reply-timeout=5000", "--dest=org.freedesktop.FileManager1",
             "/org/freedesktop/FileManager1", "org.freedesktop.FileManager1.ShowFolders",
             "array:string:" + fileAddress(home), "string:"}};
}

std::string lowered(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    return lower;
}

/// The default handler where it is known, else the desktop's own file manager.
const FileManager* managerFor(std::string_view handler, Desktop desktop) {
    const std::string lower = lowered(handler);
    const auto byHandler = std::find_if(restartable.begin(), restartable.end(), [&](const auto& manager) {
        return lower.find(manager.desktopFile) != std::string::npos;
    });
    if (byHandler != restartable.end()) return &*byHandler;
    const auto byDesktop = std::find_if(restartable.begin(), restartable.end(),
                                        [&](const auto& manager) { return manager.desktop == desktop; });
    return byDesktop == restartable.end() ? nullptr : &*byDesktop;
}

Commands restartOf(const FileManager& manager, const DesktopEnvironment& environment) {
    const std::string tool(manager.tool);
    const ToolCommand quit = manager.quitOption.empty()
                                 ? endCommand(tool, environment.userId)
                                 : ToolCommand{tool, {std::string(manager.quitOption)}};
    // It comes back only on demand, so a window is asked for afterwards.
    return {quit, showFolder(environment.home)};
}

} // namespace

std::vector<ActionMeans> newWindowMeans(const DesktopEnvironment& environment) {
    if (environment.home.empty()) return {};
    const ToolCommand show = showFolder(environment.home);
    // Some openers are the file manager itself until its window is closed.
    const ToolCommand open{"xdg-open", {environment.home}, true};
    const auto always = [](const ToolCommand& command) {
        return [command](std::string_view) { return Commands{command}; };
    };
    return {{{show.tool}, allTools(), std::nullopt, always(show)},
            {{open.tool}, allTools(), std::nullopt, always(open)}};
}

std::vector<ActionMeans> restartFileManagerMeans(const DesktopEnvironment& environment) {
    if (environment.home.empty()) return {};
    return {{{"xdg-mime", "dbus-send"},
             restartableTools(),
             ToolCommand{"xdg-mime", {"query", "default", "inode/directory"}},
             [environment](std::string_view handler) {
                 const FileManager* manager = managerFor(handler, environment.desktop);
                 return manager ? restartOf(*manager, environment) : Commands{};
             }}};
}

std::string fileAddress(std::string_view path) {
    constexpr std::string_view plain = "/-._~";
    std::string address = "file://";
    for (const char character : path) {
        const bool isAlphanumeric = (character >= 'a' && character <= 'z') ||
                                    (character >= 'A' && character <= 'Z') ||
                                    (character >= '0' && character <= '9');
        if (isAlphanumeric || plain.find(character) != std::string_view::npos) {
            address += character;
        } else {
            address += fmt::format("%{:02X}", static_cast<unsigned char>(character));
        }
    }
    return address;
}

} // namespace tarvo::linux_platform
