#include "ui/style/painting.h"

#include "ui/geometry/load_color.h"
#include "ui/geometry/ring_geometry.h"
#include "ui/style/symbol.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace tarvo::ui {
namespace {

// Qt counts angles in sixteenths of a degree, from three o'clock, anticlockwise.
constexpr int topAngle = 90 * 16;
constexpr double fullCircle = 360 * 16;

void fillCapsule(QPainter& painter, const QRectF& area, const QBrush& brush) {
    const double radius = std::min(area.width(), area.height()) / 2;
    painter.setBrush(brush);
    painter.drawRoundedRect(area, radius, radius);
}

} // namespace

void paintIconTile(QPainter& painter, const Theme& theme, const QRectF& area, const IconTile& tile,
                   Color color) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.groundGradient(color, area));
    painter.drawRoundedRect(area, tile.cornerRadius, tile.cornerRadius);
    QRectF symbol(0, 0, tile.symbolSize, tile.symbolSize);
    symbol.moveCenter(area.center());
    paintSymbol(painter, symbol, tile.symbol, theme.color(colors::white));
}

void paintBar(QPainter& painter, const Theme& theme, const QRectF& track, double trackOpacity,
              double fillWidth, Color color) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    fillCapsule(painter, track, theme.color(colors::primary.withOpacity(trackOpacity)));
    const QRectF filled(track.topLeft(), QSizeF(fillWidth, track.height()));
    fillCapsule(painter, filled, theme.gradient(color, filled));
}

void paintRing(QPainter& painter, const Theme& theme, const QRectF& frame, double percent) {
    const QRectF circle =
        frame.adjusted(ringLineWidth / 2, ringLineWidth / 2, -ringLineWidth / 2, -ringLineWidth / 2);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme.color(colors::primary.withOpacity(0.1)), ringLineWidth));
    painter.drawEllipse(circle);
    const QBrush arc = theme.gradient(loadColor(percent), frame);
    painter.setPen(QPen(arc, ringLineWidth, Qt::SolidLine, Qt::RoundCap));
    painter.drawArc(circle, topAngle, -static_cast<int>(std::lround(ringFraction(percent) * fullCircle)));
}

QPainterPath linePath(const std::vector<DrawPoint>& points) {
    QPainterPath path;
    if (points.size() < 2) return path;
    path.reserve(static_cast<int>(points.size()) + 1);
    path.moveTo(points.front().x, points.front().y);
    for (std::size_t index = 1; index < points.size(); ++index)
        path.lineTo(points[index].x, points[index].y);
    return path;
}

QPainterPath areaPath(const std::vector<DrawPoint>& points, double bottom) {
    QPainterPath path = linePath(points);
    if (path.isEmpty()) return path;
    path.lineTo(points.back().x, bottom);
    path.lineTo(points.front().x, bottom);
    path.closeSubpath();
    return path;
}

} // namespace tarvo::ui
