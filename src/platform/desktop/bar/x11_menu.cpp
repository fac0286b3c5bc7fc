#include "platform/desktop/bar/x11_menu.h"

#include "platform/desktop/bar/x11_connection.h"

#include <array>
#include <cstdint>

namespace tarvo::desktop {

void declarePopupMenu(QWindow& window) {
    xcb_connection_t* display = x11Connection();
    if (!display) return;
    // The second is for those who do not know the first.
    const std::array<xcb_atom_t, 2> types{x11Atom(display, "_NET_WM_WINDOW_TYPE_POPUP_MENU"),
                                          x11Atom(display, "_NET_WM_WINDOW_TYPE_NORMAL")};
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, static_cast<xcb_window_t>(window.winId()),
                        x11Atom(display, "_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32,
                        static_cast<std::uint32_t>(types.size()), types.data());
}

} // namespace tarvo::desktop
