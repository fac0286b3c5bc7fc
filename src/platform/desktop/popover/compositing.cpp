#include "platform/desktop/popover/compositing.h"

#include <QGuiApplication>

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace tarvo::desktop {

namespace {

constexpr std::string_view managerSelection = "_NET_WM_CM_S0";

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

bool hasCompositingManager(xcb_connection_t* display) {
    const auto name = xcb_intern_atom(display, 0, managerSelection.size(), managerSelection.data());
    const auto atom = owned(xcb_intern_atom_reply(display, name, nullptr));
    if (!atom) return false;
    const auto asked = xcb_get_selection_owner(display, atom->atom);
    const auto answer = owned(xcb_get_selection_owner_reply(display, asked, nullptr));
    return answer && answer->owner != XCB_WINDOW_NONE;
}

} // namespace

bool compositesWindows() {
    if (const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>())
        return hasCompositingManager(x11->connection());
    return QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

} // namespace tarvo::desktop
