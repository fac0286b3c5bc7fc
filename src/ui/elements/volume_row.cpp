#include "ui/elements/volume_row.h"

#include "ui/geometry/bar_geometry.h"
#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>

namespace tarvo::ui {
namespace {

constexpr double tileSize = 26;
constexpr double tileRadius = 7;
constexpr double symbolSize = 14;

} // namespace

VolumeRow::VolumeRow(QWidget* parent) : Element(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString VolumeRow::accessibleText() const {
    return QString::fromStdString(fields().name + " " + fields().value);
}

void VolumeRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    const QRectF tile(0, (height() - tileSize) / 2, tileSize, tileSize);
    paintIconTile(painter, shades, tile, {fields().icon, symbolSize, tileRadius}, fields().color);

    const double left = tile.right() + metrics::medium;
    const QRectF track(left, height() - metrics::small - metrics::barHeight, std::max(0.0, width() - left),
                       metrics::barHeight);
    const QRectF line(left, metrics::hair, track.width(), track.top() - metrics::tight);
    painter.setPen(shades.color(colors::primary));
    const TabularText value(roleFont(TextRole::rowValue));
    const QString reading = value.elided(QString::fromStdString(fields().value), line.width());
    value.draw(painter, line, Qt::AlignRight, reading);
    const TabularText name(roleFont(TextRole::rowLabel));
    const double room = std::max(0.0, line.width() - value.width(reading) - metrics::regular);
    name.draw(painter, line, Qt::AlignLeft, name.elided(QString::fromStdString(fields().name), room));
    paintBar(painter, shades, track, 0.08, capacityBarWidth(track.width(), fields().fraction),
             fields().color);
}

} // namespace tarvo::ui
