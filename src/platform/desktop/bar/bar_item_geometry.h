#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace tarvo::desktop {

inline constexpr int barHeight = 26; ///< logical pixels

/// Where the parts of one item stand inside it, in logical pixels.
struct BarItemGeometry {
    int width = 0; ///< of the whole item
    QRectF image;
    QPointF title; ///< top left
};

/// `image` and `title` are empty where the item has none; `reservedTitleWidth` is at least the title's.
BarItemGeometry layoutBarItem(const QSizeF& image, const QSizeF& title, double reservedTitleWidth,
                              bool centred, int height);

} // namespace tarvo::desktop
