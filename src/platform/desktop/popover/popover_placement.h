#pragma once

#include <QRect>
#include <QSize>

namespace tarvo::desktop {

/// Gap between a popover and its anchor, and between a popover and the edges of the screen.
inline constexpr int popoverGap = 6;

/// Where a panel of that size stands beside its anchor: below it, or above where there is more room, centred
/// on it, inside the area and no higher than the room there is. All in one coordinate system.
QRect placePopover(const QRect& anchor, QSize panel, const QRect& area);

} // namespace tarvo::desktop
