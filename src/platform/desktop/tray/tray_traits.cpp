#include "platform/desktop/tray/tray_traits.h"

#include <algorithm>
#include <array>

namespace tarvo::desktop {

namespace {

struct KnownTray {
    std::string_view process;
    TrayTraits traits;
};

// Its panel writes each new item into its settings and reads those back; an item that comes in between is
// lost.
constexpr TrayTraits xfceTraits{
    .keepsAspect = false, .showsLabel = false, .reversed = true, .pause = std::chrono::milliseconds{200}};

constexpr std::array knownTrays{
    KnownTray{"waybar", {.keepsAspect = true, .showsLabel = false, .reversed = false}},
    KnownTray{"gnome-shell", {.keepsAspect = false, .showsLabel = true, .reversed = false}},
    KnownTray{"ayatana-indicat", {.keepsAspect = false, .showsLabel = true, .reversed = false}},
    KnownTray{"indicator-appli", {.keepsAspect = false, .showsLabel = true, .reversed = false}},
    KnownTray{"xfce4-panel", xfceTraits},
};

// Its panel runs each plugin in a process of its own, named "panel-<number of the plugin>-systray".
bool isXfceTrayPlugin(std::string_view process) {
    constexpr std::string_view start = "panel-";
    constexpr std::string_view end = "-systray";
    constexpr std::size_t longestName = 15;
    if (!process.starts_with(start)) return false;
    const bool isCut = process.size() == longestName;
    process.remove_prefix(start.size());
    const std::size_t digits = std::min(process.find_first_not_of("0123456789"), process.size());
    process.remove_prefix(digits);
    return digits > 0 && (process == end || (isCut && !process.empty() && end.starts_with(process)));
}

} // namespace

TrayTraits trayTraits(std::string_view process) {
    for (const KnownTray& tray : knownTrays) {
        if (tray.process == process) return tray.traits;
    }
    return isXfceTrayPlugin(process) ? xfceTraits : TrayTraits{};
}

} // namespace tarvo::desktop
