#include "platform/desktop/bar/x11_connection.h"

#include <QGuiApplication>

#include <cstdint>
#include <cstdlib>
#include <memory>

namespace tarvo::desktop {

xcb_connection_t* x11Connection() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return x11 ? x11->connection() : nullptr;
}

xcb_window_t x11Root(xcb_connection_t* display) {
    return xcb_setup_roots_iterator(xcb_get_setup(display)).data->root;
}

xcb_atom_t x11Atom(xcb_connection_t* display, std::string_view name) {
    const auto cookie = xcb_intern_atom(display, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, decltype(&std::free)> reply(
        xcb_intern_atom_reply(display, cookie, nullptr), &std::free);
    return reply ? reply->atom : 0;
}

} // namespace tarvo::desktop
