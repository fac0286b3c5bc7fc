#pragma once

#include <xcb/xcb.h>

#include <string_view>

namespace tarvo::desktop {

/// The toolkit's connection to the X server; null where there is none. Main thread only.
xcb_connection_t* x11Connection();

xcb_window_t x11Root(xcb_connection_t* display);

/// The number of a name; 0 when the server does not answer.
xcb_atom_t x11Atom(xcb_connection_t* display, std::string_view name);

} // namespace tarvo::desktop
