#include "platform/desktop/popover/popover_placement.h"

#include <algorithm>

namespace tarvo::desktop {

QRect placePopover(const QRect& anchor, QSize panel, const QRect& area) {
    const QRect inside = area.adjusted(popoverGap, popoverGap, -popoverGap, -popoverGap);
    const int belowAnchor = std::max(anchor.bottom() + 1 + popoverGap, inside.top());
    const int aboveAnchor = std::min(anchor.top() - popoverGap, inside.bottom() + 1);
    const int roomBelow = inside.bottom() + 1 - belowAnchor;
    const int roomAbove = aboveAnchor - inside.top();

    const bool isBelow = panel.height() <= roomBelow || roomBelow >= roomAbove;
    const int height = std::clamp(panel.height(), 0, std::max(0, isBelow ? roomBelow : roomAbove));
    const int width = std::min(panel.width(), inside.width());
    const int centred = anchor.left() + (anchor.width() - width) / 2;
    const int left = std::clamp(centred, inside.left(), inside.right() + 1 - width);
    return {left, isBelow ? belowAnchor : aboveAnchor - height, width, height};
}

} // namespace tarvo::desktop
