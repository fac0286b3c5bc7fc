#include "platform/desktop/bar/line_drawing_painter.h"

#include "platform/desktop/system_palette.h"

#include <QPainter>
#include <QPen>
#include <QPolygonF>

namespace tarvo::desktop {

void paintLineDrawing(QPainter& painter, QPointF topLeft, const LineDrawing& drawing,
                      const QPalette& palette) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(QRectF(topLeft, QSizeF(drawing.width, drawing.height)));
    painter.setBrush(Qt::NoBrush);
    for (const LineDrawing::Stroke& stroke : drawing.strokes) {
        QPolygonF line;
        line.reserve(static_cast<qsizetype>(stroke.points.size()));
        for (const Point& point : stroke.points) {
            line.append(topLeft + QPointF(point.x, drawing.height - point.y));
        }
        painter.setPen(
            {systemColor(stroke.color, palette), stroke.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin});
        painter.drawPolyline(line);
    }
    painter.restore();
}

} // namespace tarvo::desktop
