#include "platform/desktop/popover/pointer_position.h"

#include <QCursor>
#include <QGuiApplication>

namespace tarvo::desktop {

std::optional<QPoint> pointerPosition() {
    if (QGuiApplication::platformName().startsWith(QLatin1String("wayland"))) return std::nullopt;
    return QCursor::pos();
}

} // namespace tarvo::desktop
