#include "ui/sections/alert_row.h"

#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <algorithm>

namespace tarvo::ui {
namespace {

constexpr double tileSize = 28;
constexpr double tileRadius = 8;
constexpr double symbolSize = 15;

} // namespace

AlertRow::AlertRow(QWidget* parent) : Element(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QString AlertRow::accessibleText() const {
    return QString::fromStdString(fields().title + ", " + fields().body + ", " + fields().date);
}

void AlertRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    const QRectF tile(0, (height() - tileSize) / 2, tileSize, tileSize);
    paintIconTile(painter, shades, tile, {fields().icon, symbolSize, tileRadius}, fields().color);

    const double left = tile.right() + metrics::medium;
    const double half = height() / 2.0;
    const QRectF upper(left, metrics::tight, std::max(0.0, width() - left), half - metrics::tight);
    const QRectF lower(left, half, upper.width(), half - metrics::tight);
    painter.setPen(shades.color(colors::secondary));
    const TabularText date(roleFont(TextRole::caption));
    const QString when = date.elided(QString::fromStdString(fields().date), upper.width() / 2);
    date.draw(painter, upper, Qt::AlignRight, when);
    const TabularText body(roleFont(TextRole::placeholder));
    body.draw(painter, lower, Qt::AlignLeft,
              body.elided(QString::fromStdString(fields().body), lower.width()));
    painter.setPen(shades.color(colors::primary));
    const TabularText title(roleFont(TextRole::rowValue));
    const double room = std::max(0.0, upper.width() - date.width(when) - metrics::regular);
    title.draw(painter, upper, Qt::AlignLeft, title.elided(QString::fromStdString(fields().title), room));
}

} // namespace tarvo::ui
