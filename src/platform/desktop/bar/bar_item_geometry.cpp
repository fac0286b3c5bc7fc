#include "platform/desktop/bar/bar_item_geometry.h"

#include <cmath>

namespace tarvo::desktop {

namespace {

constexpr double sidePadding = 8;
constexpr double imageGap = 5;

} // namespace

BarItemGeometry layoutBarItem(const QSizeF& image, const QSizeF& title, double reservedTitleWidth,
                              bool centred, int height) {
    BarItemGeometry geometry;
    double x = sidePadding;
    if (!image.isEmpty()) {
        geometry.image = QRectF(QPointF(x, std::round((height - image.height()) / 2)), image);
        x += image.width() + (reservedTitleWidth > 0 ? imageGap : 0);
    }
    const double indent = centred ? (reservedTitleWidth - title.width()) / 2 : 0;
    geometry.title = {std::round(x + indent), std::round((height - title.height()) / 2)};
    geometry.width = static_cast<int>(std::ceil(x + reservedTitleWidth + sidePadding));
    return geometry;
}

} // namespace tarvo::desktop
