#include "ui/style/symbol.h"

#include "platform/desktop/symbols/symbol_images.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvo::ui {
namespace {

// Pictures are kept for the whole process: every view draws the same few.
desktop::SymbolImages& symbolImages() {
    static desktop::SymbolImages images;
    return images;
}

} // namespace

void paintSymbol(QPainter& painter, const QRectF& area, std::string_view name, const QColor& color) {
    const double size = std::min(area.width(), area.height());
    // The device alone does not tell: a widget may be painted into a picture of another scale.
    const double ratio = std::max(1.0, painter.deviceTransform().m11());
    const QImage image = symbolImages().image(name, size, ratio, color);
    if (image.isNull()) return;
    QRectF place(0, 0, size, size);
    place.moveCenter(area.center());
    // On whole device pixels, so that the picture is not blurred by resampling.
    const QPointF origin = painter.transform().map(place.topLeft());
    const QPointF whole(std::round(origin.x() * ratio) / ratio, std::round(origin.y() * ratio) / ratio);
    painter.drawImage(place.topLeft() + whole - origin, image);
}

} // namespace tarvo::ui
