#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Reads one environment variable; absent when it is not set.
using EnvironmentLookup = std::function<std::optional<std::string>(const char*)>;

enum class Desktop { gnome, kde, xfce, cinnamon, mate, lxqt, sway, wlroots, other };

/// Which desktop this session is, from the session's variables (XDG_CURRENT_DESKTOP and the displays).
struct DesktopEnvironment {
    Desktop desktop = Desktop::other;
    bool isWayland = false;
    bool isX11 = false;
    std::string home;                        ///< absolute, else empty
    std::vector<std::string> themeFolders{}; ///< folders that hold a folder for each theme of the toolkits
    unsigned userId = 0;                     ///< who asks programs to end
};

DesktopEnvironment desktopEnvironment(const EnvironmentLookup& lookup, unsigned userId = 0);

} // namespace tarvo::linux_platform
