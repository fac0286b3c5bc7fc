#include "platform/desktop/bar/x11_client_watcher.h"

#include "platform/desktop/bar/x11_connection.h"

#include <QGuiApplication>

#include <utility>

namespace tarvo::desktop {

namespace {

constexpr int sentBySomebody = 0x80; ///< bit of the event's type

} // namespace

// The toolkit itself listens to the properties of the root window.
X11ClientWatcher::X11ClientWatcher(std::function<void()> changed) : changed_(std::move(changed)) {
    xcb_connection_t* display = x11Connection();
    if (!display) return;
    root_ = x11Root(display);
    clientList_ = x11Atom(display, "_NET_CLIENT_LIST");
    qGuiApp->installNativeEventFilter(this);
}

X11ClientWatcher::~X11ClientWatcher() {
    if (qGuiApp) qGuiApp->removeNativeEventFilter(this);
}

bool X11ClientWatcher::nativeEventFilter(const QByteArray&, void* message, qintptr*) {
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & ~sentBySomebody) != XCB_PROPERTY_NOTIFY) return false;
    const auto* property = static_cast<const xcb_property_notify_event_t*>(message);
    if (property->window == root_ && property->atom == clientList_) changed_();
    return false;
}

} // namespace tarvo::desktop
