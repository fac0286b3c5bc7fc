#include "platform/linux/desktop_environment.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <utility>

namespace tarvo::linux_platform {
namespace {

constexpr std::array<std::pair<std::string_view, Desktop>, 14> names = {{
    {"gnome", Desktop::gnome},
    {"unity", Desktop::gnome},
    {"budgie", Desktop::gnome},
    {"pantheon", Desktop::gnome},
    {"kde", Desktop::kde},
    {"xfce", Desktop::xfce},
    {"x-cinnamon", Desktop::cinnamon},
    {"cinnamon", Desktop::cinnamon},
    {"mate", Desktop::mate},
    {"lxqt", Desktop::lxqt},
    {"sway", Desktop::sway},
    {"hyprland", Desktop::wlroots},
    {"wayfire", Desktop::wlroots},
    {"labwc", Desktop::wlroots},
}};

Desktop desktopNamed(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char character) { return static_cast<char>(std::tolower(character)); });
    const auto found =
        std::find_if(names.begin(), names.end(), [&](const auto& row) { return row.first == name; });
    return found == names.end() ? Desktop::other : found->second;
}

/// The first name of the colon list that is known: "ubuntu:GNOME" is GNOME.
Desktop firstKnown(std::string_view list) {
    while (!list.empty()) {
        const auto end = std::min(list.find(':'), list.size());
        const auto desktop = desktopNamed(std::string(list.substr(0, end)));
        if (desktop != Desktop::other) return desktop;
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return Desktop::other;
}

bool isSet(const EnvironmentLookup& lookup, const char* name) {
    const auto value = lookup(name);
    return value && !value->empty();
}

/// Where themes are looked for (XDG Base Directory Specification), the user's own first.
std::vector<std::string> themeFolders(const EnvironmentLookup& lookup, const std::string& home) {
    std::vector<std::string> folders;
    if (!home.empty()) folders.push_back(home + "/.themes");
    std::string list = lookup("XDG_DATA_HOME").value_or("");
    if (list.empty() && !home.empty()) list = home + "/.local/share";
    const auto shared = lookup("XDG_DATA_DIRS").value_or("");
    list += ":" + (shared.empty() ? std::string("/usr/local/share:/usr/share") : shared);
    for (std::string_view rest = list; !rest.empty();) {
        const auto end = std::min(rest.find(':'), rest.size());
        const auto folder = rest.substr(0, end);
        if (folder.starts_with('/')) folders.push_back(std::string(folder) + "/themes");
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return folders;
}

} // namespace

DesktopEnvironment desktopEnvironment(const EnvironmentLookup& lookup, unsigned userId) {
    DesktopEnvironment environment;
    environment.desktop = firstKnown(lookup("XDG_CURRENT_DESKTOP").value_or(""));
    environment.isWayland = isSet(lookup, "WAYLAND_DISPLAY");
    environment.isX11 = !environment.isWayland && isSet(lookup, "DISPLAY");
    const auto home = lookup("HOME").value_or("");
    if (home.starts_with('/')) environment.home = home;
    environment.themeFolders = themeFolders(lookup, environment.home);
    environment.userId = userId;
    return environment;
}

} // namespace tarvo::linux_platform
