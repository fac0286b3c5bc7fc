#include "ui/elements/sparkline.h"

#include "ui/geometry/ring_geometry.h"
#include "ui/geometry/sparkline_points.h"
#include "ui/style/painting.h"

#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr double lineWidth = 1.8;

} // namespace

Sparkline::Sparkline(SparklineFields fields, QWidget* parent) : Element(std::move(fields), parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString Sparkline::accessibleText() const {
    return fields().values.empty() ? QString() : QString::fromStdString(ringText(fields().values.back()));
}

void Sparkline::paintEvent(QPaintEvent*) {
    // Half a line of room keeps the stroke at 0 and 100 % inside the frame.
    const QRectF frame = QRectF(rect()).adjusted(0, lineWidth / 2, 0, -lineWidth / 2);
    const auto points =
        normalizedPoints(fields().values, fields().maxSamples, {frame.width(), frame.height()});
    if (points.empty()) return;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(frame.topLeft());
    const Theme shades = theme();
    QLinearGradient fade(0, 0, 0, frame.height());
    fade.setColorAt(0, shades.color(fields().color.withOpacity(0.3)));
    fade.setColorAt(1, shades.color(fields().color.withOpacity(0.02)));
    painter.fillPath(areaPath(points, frame.height()), fade);
    const QBrush stroke = shades.gradient(fields().color, QRectF({}, frame.size()));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(stroke, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(linePath(points));
}

} // namespace tarvo::ui
