#include "ui/sections/module_header.h"

#include "ui/style/metrics.h"
#include "ui/style/painting.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr double tileSize = 22;
constexpr double tileRadius = 6;
constexpr double symbolSize = 12;

} // namespace

ModuleHeader::ModuleHeader(QWidget* parent) : Element(parent) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ModuleHeader::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    const QRectF tile(0, (height() - tileSize) / 2, tileSize, tileSize);
    paintIconTile(painter, shades, tile, {fields().icon, symbolSize, tileRadius}, fields().color);
    painter.setPen(shades.color(colors::primary));
    const TabularText title(roleFont(TextRole::heroTitle));
    const QRectF line = QRectF(rect()).adjusted(tileSize + metrics::regular, 0, 0, 0);
    title.draw(painter, line, Qt::AlignLeft, title.elided(accessibleText(), line.width()));
}

} // namespace tarvo::ui
