#include "platform/desktop/tray/tray_traits.h"

#include <array>

namespace tarvo::desktop {

namespace {

struct KnownTray {
    std::string_view process;
    TrayTraits traits;
};

constexpr std::array knownTrays{
    KnownTray{"waybar", {.keepsAspect = true, .showsLabel = false, .reversed = false}},
    KnownTray{"gnome-shell", {.keepsAspect = false, .showsLabel = true, .reversed = false}},
    KnownTray{"ayatana-indicat", {.keepsAspect = false, .showsLabel = true, .reversed = false}},
    KnownTray{"indicator-appli", {.keepsAspect = false, .showsLabel = true, .reversed = false}},
    KnownTray{"xfce4-panel", {.keepsAspect = false, .showsLabel = false, .reversed = true}},
};

} // namespace

TrayTraits trayTraits(std::string_view process) {
    for (const KnownTray& tray : knownTrays) {
        if (tray.process == process) return tray.traits;
    }
    return {};
}

} // namespace tarvo::desktop
