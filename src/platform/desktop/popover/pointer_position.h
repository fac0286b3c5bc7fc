#pragma once

#include <QPoint>

#include <optional>

namespace tarvo::desktop {

/// The pointer on the screen. Absent on Wayland, where it is known over the program's own windows only.
std::optional<QPoint> pointerPosition();

} // namespace tarvo::desktop
