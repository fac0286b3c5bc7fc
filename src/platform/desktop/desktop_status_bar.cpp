#include "platform/desktop/desktop_status_bar.h"

#include "platform/desktop/bar/bar_host.h"
#include "platform/desktop/tray/tray_host.h"
#include "platform/desktop/tray/tray_traits.h"

#include <utility>

namespace tarvo::desktop {

namespace {

StatusBarWish wish(const std::string& preference) {
    const auto forced = statusBarWish(qgetenv(DesktopStatusBar::wishVariable).toStdString());
    return forced.value_or(statusBarWish(preference).value_or(StatusBarWish::automatic));
}

} // namespace

DesktopStatusBar::DesktopStatusBar(Needs needs)
    : needs_(std::move(needs)), watcher_(QDBusConnection::sessionBus(), needs_.processName),
      chooser_(watcher_, makeHosts(), needs_.dispatcher, [this] { return wish(needs_.preferredHost()); }) {}

StatusBarHosts DesktopStatusBar::makeHosts() {
    return {.makeBar = [this] { return std::make_unique<BarHost>(needs_.symbols, needs_.closedByUser); },
            .makeTray =
                [this](const std::string& process) {
                    return std::make_unique<TrayHost>(trayTraits(process), needs_.symbols, needs_.dispatcher,
                                                      QDBusConnection::sessionBus());
                }};
}

} // namespace tarvo::desktop
