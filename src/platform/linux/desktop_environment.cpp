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

} // namespace

DesktopEnvironment desktopEnvironment(const EnvironmentLookup& lookup) {
    DesktopEnvironment environment;
    environment.desktop = firstKnown(lookup("XDG_CURRENT_DESKTOP").value_or(""));
    environment.isWayland = isSet(lookup, "WAYLAND_DISPLAY");
    environment.isX11 = !environment.isWayland && isSet(lookup, "DISPLAY");
    const auto home = lookup("HOME").value_or("");
    if (home.starts_with('/')) environment.home = home;
    return environment;
}

} // namespace tarvo::linux_platform
