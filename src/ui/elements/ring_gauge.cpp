#include "ui/elements/ring_gauge.h"

#include "ui/geometry/ring_geometry.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {

RingGauge::RingGauge(RingGaugeFields fields, QWidget* parent) : Element(std::move(fields), parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString RingGauge::accessibleText() const {
    const QString reading = QString::fromStdString(fields().title + " " + ringText(fields().value));
    return fields().detail.empty() ? reading : reading + ", " + QString::fromStdString(fields().detail);
}

QSize RingGauge::sizeHint() const {
    const double title = QFontMetricsF(roleFont(TextRole::ringTitle)).height();
    const double detail = QFontMetricsF(roleFont(TextRole::ringDetail)).height();
    const double height = ringDiameter + metrics::tight + title + detail;
    return {static_cast<int>(ringDiameter) + metrics::regular, static_cast<int>(std::ceil(height))};
}

void RingGauge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRectF frame(0, 0, ringDiameter, ringDiameter);
    frame.moveLeft((width() - ringDiameter) / 2);
    const Theme shades = theme();
    paintRing(painter, shades, frame, fields().value);

    painter.setPen(shades.color(colors::primary));
    const TabularText value(roleFont(TextRole::ringValue));
    value.draw(painter, frame, Qt::AlignHCenter, QString::fromStdString(ringText(fields().value)));

    const TabularText title(roleFont(TextRole::ringTitle));
    const QRectF titleLine(0, frame.bottom() + metrics::tight, width(), title.metrics().height());
    title.draw(painter, titleLine, Qt::AlignHCenter,
               title.elided(QString::fromStdString(fields().title), width()));

    painter.setPen(shades.color(colors::secondary));
    const TabularText detail(roleFont(TextRole::ringDetail));
    const QRectF detailLine(0, titleLine.bottom(), width(), detail.metrics().height());
    detail.draw(painter, detailLine, Qt::AlignHCenter,
                detail.elided(QString::fromStdString(fields().detail), width()));
}

} // namespace tarvo::ui
