#include "ui/style/symbol.h"

#include <QPainter>

namespace tarvo::ui {

void paintSymbol(QPainter& painter, const QRectF& area, std::string_view, const QColor& color) {
    painter.save();
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(area.adjusted(2, 2, -2, -2), 2, 2);
    painter.restore();
}

} // namespace tarvo::ui
