#include "ui/controls/module_toggle_tile.h"

#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/symbol.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr double tileSize = 34;
constexpr double tileRadius = 10;
constexpr double symbolSize = 16;
constexpr double markSize = 13;
constexpr double offOpacity = 0.13;
constexpr double tileTop = 6;

} // namespace

ModuleToggleTile::ModuleToggleTile(QWidget* parent) : PaintedButton(parent) {
    setCheckable(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ModuleToggleTile::set(ModuleToggleTileFields fields) {
    if (fields == fields_) return;
    fields_ = std::move(fields);
    setName(fields_.label);
    update();
}

void ModuleToggleTile::setLabelLines(int lines) {
    labelLines_ = lines;
    updateGeometry();
}

void ModuleToggleTile::setOn(bool isOn) {
    setCheckedByProgram(isOn);
}

QSize ModuleToggleTile::sizeHint() const {
    const double line = QFontMetricsF(roleFont(TextRole::tileLabel)).height();
    return {64, static_cast<int>(std::ceil(tileTop + tileSize + labelLines_ * line)) + 2 * metrics::tight};
}

void ModuleToggleTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme().color(colors::primary.withOpacity(emphasis() / 2)));
    painter.drawRoundedRect(QRectF(rect()), tileRadius, tileRadius);
    const QRectF tile((width() - tileSize) / 2, tileTop, tileSize, tileSize);
    paintTile(painter, tile);
    paintLabel(painter, tile.bottom() + metrics::tight);
    paintFocus(painter, rect(), tileRadius);
}

void ModuleToggleTile::paintTile(QPainter& painter, const QRectF& tile) const {
    const Theme shades = theme();
    if (isOn()) {
        paintIconTile(painter, shades, tile, {fields_.icon, symbolSize, tileRadius}, fields_.color);
        QRectF mark(0, 0, markSize, markSize);
        mark.moveCenter(tile.topRight() + QPointF(-2, 2));
        painter.setBrush(shades.card());
        painter.drawEllipse(mark.adjusted(-1, -1, 1, 1));
        paintSymbol(painter, mark, "checkmark.circle.fill", shades.color(fields_.color));
        return;
    }
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.color(fields_.color.withOpacity(offOpacity)));
    painter.drawRoundedRect(tile, tileRadius, tileRadius);
    QRectF symbol(0, 0, symbolSize, symbolSize);
    symbol.moveCenter(tile.center());
    paintSymbol(painter, symbol, fields_.icon, shades.color(fields_.color));
}

void ModuleToggleTile::paintLabel(QPainter& painter, double top) const {
    painter.setPen(theme().color(isOn() ? colors::primary : colors::secondary));
    painter.setFont(roleFont(TextRole::tileLabel));
    const QRectF area(1, top, width() - 2, height() - top);
    painter.drawText(area, Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap,
                     QString::fromStdString(fields_.label));
}

} // namespace tarvo::ui
