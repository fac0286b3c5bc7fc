#include "platform/desktop/bar/x11_dock.h"

#include "platform/desktop/bar/x11_connection.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <memory>
#include <string_view>
#include <vector>

namespace tarvo::desktop {

namespace {

constexpr std::uint32_t onAllDesktops = 0xffffffff;
constexpr std::uint32_t maximumClients = 4096;
constexpr std::size_t plainStrutFields = 4;
constexpr std::size_t strutFields = 12; ///< left, right, top, bottom, then start and end of each

enum AtomIndex : std::size_t {
    windowType,
    dockType,
    strut,
    strutPartial,
    desktop,
    state,
    sticky,
    above,
    skipTaskbar,
    skipPager,
    clientList,
    atomCount
};
constexpr std::array<std::string_view, atomCount> atomNames{
    "_NET_WM_WINDOW_TYPE",      "_NET_WM_WINDOW_TYPE_DOCK", "_NET_WM_STRUT",
    "_NET_WM_STRUT_PARTIAL",    "_NET_WM_DESKTOP",          "_NET_WM_STATE",
    "_NET_WM_STATE_STICKY",     "_NET_WM_STATE_ABOVE",      "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_STATE_SKIP_PAGER", "_NET_CLIENT_LIST"};

template <typename Reply>
std::unique_ptr<Reply, decltype(&std::free)> owned(Reply* reply) {
    return {reply, &std::free};
}

std::array<xcb_atom_t, atomCount> internAtoms(xcb_connection_t* display) {
    std::array<xcb_intern_atom_cookie_t, atomCount> cookies;
    for (std::size_t index = 0; index < atomCount; ++index) {
        const std::string_view name = atomNames[index];
        cookies[index] = xcb_intern_atom(display, 0, static_cast<std::uint16_t>(name.size()), name.data());
    }
    std::array<xcb_atom_t, atomCount> atoms{};
    for (std::size_t index = 0; index < atomCount; ++index) {
        const auto reply = owned(xcb_intern_atom_reply(display, cookies[index], nullptr));
        if (reply) atoms[index] = reply->atom;
    }
    return atoms;
}

template <std::size_t count>
void setProperty(xcb_connection_t* display, xcb_window_t window, xcb_atom_t name, xcb_atom_t type,
                 const std::array<std::uint32_t, count>& values) {
    xcb_change_property(display, XCB_PROP_MODE_REPLACE, window, name, type, 32, count, values.data());
}

std::vector<std::uint32_t> propertyValues(xcb_connection_t* display, xcb_get_property_cookie_t cookie) {
    const auto reply = owned(xcb_get_property_reply(display, cookie, nullptr));
    if (!reply || reply->format != 32) return {};
    std::vector<std::uint32_t> values(reply->value_len);
    if (!values.empty()) std::memcpy(values.data(), xcb_get_property_value(reply.get()), values.size() * 4);
    return values;
}

/// Height of a strut at the top, 0 where it does not touch the columns. A plain one reaches from side to
/// side.
int topStrut(const std::vector<std::uint32_t>& strut, int left, int right) {
    if (strut.size() == plainStrutFields) return static_cast<int>(strut[2]);
    if (strut.size() < strutFields) return 0;
    const bool touches = static_cast<int>(strut[8]) <= right && static_cast<int>(strut[9]) >= left;
    return touches ? static_cast<int>(strut[2]) : 0;
}

struct Reservation {
    xcb_window_t dock;
    int height;
};

/// What the clients of the window manager reserve at the top above these columns.
std::vector<Reservation> topReservations(xcb_connection_t* display, int left, int right) {
    const auto atoms = internAtoms(display);
    const auto clients =
        propertyValues(display, xcb_get_property(display, 0, x11Root(display), atoms[clientList],
                                                 XCB_ATOM_WINDOW, 0, maximumClients));
    const auto ask = [&](xcb_window_t client, AtomIndex name) {
        return xcb_get_property(display, 0, client, atoms[name], XCB_ATOM_CARDINAL, 0, strutFields);
    };
    std::vector<std::array<xcb_get_property_cookie_t, 2>> cookies;
    for (const xcb_window_t client : clients)
        cookies.push_back({ask(client, strutPartial), ask(client, strut)});
    std::vector<Reservation> reservations;
    for (std::size_t index = 0; index < clients.size(); ++index) {
        const auto partial = propertyValues(display, cookies[index][0]);
        const auto plain = propertyValues(display, cookies[index][1]);
        const int height = topStrut(partial.empty() ? plain : partial, left, right);
        if (height > 0) reservations.push_back({clients[index], height});
    }
    return reservations;
}

int topEdge(xcb_connection_t* display, xcb_window_t window) {
    const auto cookie = xcb_translate_coordinates(display, window, x11Root(display), 0, 0);
    const auto reply = owned(xcb_translate_coordinates_reply(display, cookie, nullptr));
    return reply ? reply->dst_y : 0;
}

} // namespace

bool canDock() {
    return x11Connection() != nullptr;
}

void dockAtTop(QWindow& window, const QRect& strip) {
    xcb_connection_t* display = x11Connection();
    if (!display) return;
    const auto atoms = internAtoms(display);
    const auto id = static_cast<xcb_window_t>(window.winId());
    const auto reserved = static_cast<std::uint32_t>(std::max(0, strip.bottom() + 1));
    const std::array<std::uint32_t, strutFields> partial{0,
                                                         0,
                                                         reserved,
                                                         0,
                                                         0,
                                                         0,
                                                         0,
                                                         0,
                                                         static_cast<std::uint32_t>(strip.left()),
                                                         static_cast<std::uint32_t>(strip.right()),
                                                         0,
                                                         0};
    setProperty(display, id, atoms[windowType], XCB_ATOM_ATOM, std::array{atoms[dockType]});
    setProperty(display, id, atoms[state], XCB_ATOM_ATOM,
                std::array{atoms[sticky], atoms[above], atoms[skipTaskbar], atoms[skipPager]});
    setProperty(display, id, atoms[desktop], XCB_ATOM_CARDINAL, std::array{onAllDesktops});
    setProperty(display, id, atoms[strut], XCB_ATOM_CARDINAL,
                std::array<std::uint32_t, 4>{0, 0, reserved, 0});
    setProperty(display, id, atoms[strutPartial], XCB_ATOM_CARDINAL, partial);
    xcb_flush(display);
}

int topReservedByOthers(const QWindow& window, int left, int right) {
    xcb_connection_t* display = x11Connection();
    if (!display) return 0;
    const auto own = static_cast<xcb_window_t>(window.winId());
    const int lowest = window.isVisible() ? topEdge(display, own) : std::numeric_limits<int>::max();
    int top = 0;
    for (const auto& [dock, reserved] : topReservations(display, left, right)) {
        if (dock != own && reserved > top && topEdge(display, dock) <= lowest) top = reserved;
    }
    return top;
}

} // namespace tarvo::desktop
