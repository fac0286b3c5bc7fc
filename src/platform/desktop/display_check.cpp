#include "platform/desktop/display_check.h"

#include <QByteArray>

#include <xcb/xcb.h>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include "platform/posix/file_descriptor.h"

#include <cstring>

namespace tarvo::desktop {

namespace {

bool waylandAnswers(const QByteArray& display) {
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray path = display.startsWith('/') ? display : folder + '/' + display;
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (static_cast<std::size_t>(path.size()) >= sizeof address.sun_path) return false;
    std::memcpy(address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0));
    return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0;
}

bool x11Answers() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool answers = xcb_connection_has_error(connection) == 0;
    xcb_disconnect(connection);
    return answers;
}

} // namespace

std::optional<std::string> missingDisplay() {
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) return std::nullopt;
    const QByteArray wayland = qgetenv("WAYLAND_DISPLAY");
    if (!wayland.isEmpty() && waylandAnswers(wayland)) return std::nullopt;
    const QByteArray x11 = qgetenv("DISPLAY");
    if (!x11.isEmpty() && x11Answers()) return std::nullopt;
    if (wayland.isEmpty() && x11.isEmpty()) return "no display: neither DISPLAY nor WAYLAND_DISPLAY is set";
    return "cannot reach the display " + (x11.isEmpty() ? wayland : x11).toStdString();
}

} // namespace tarvo::desktop
