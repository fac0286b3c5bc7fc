#include "ui/elements/level_row.h"

#include "ui/geometry/bar_geometry.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>

namespace tarvo::ui {

LevelRow::LevelRow(QWidget* parent) : Element(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString LevelRow::accessibleText() const {
    return QString::fromStdString(fields().label + " " + fields().value);
}

void LevelRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Theme shades = theme();
    const QRectF track(0, height() - metrics::barHeight - metrics::tight, width(), metrics::barHeight);
    const QRectF line(0, 0, width(), track.top() - metrics::hair);
    painter.setPen(shades.color(colors::primary));
    const TabularText value(roleFont(TextRole::rowValue));
    const QString reading = value.elided(QString::fromStdString(fields().value), line.width());
    value.draw(painter, line, Qt::AlignRight, reading);
    const TabularText label(roleFont(TextRole::rowLabel));
    const double room = std::max(0.0, line.width() - value.width(reading) - metrics::regular);
    label.draw(painter, line, Qt::AlignLeft, label.elided(QString::fromStdString(fields().label), room));
    paintBar(painter, shades, track, 0.08, capacityBarWidth(track.width(), fields().fraction),
             fields().color);
}

} // namespace tarvo::ui
