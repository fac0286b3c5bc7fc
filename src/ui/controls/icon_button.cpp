#include "ui/controls/icon_button.h"

#include "ui/style/symbol.h"

#include <QPainter>

namespace tarvo::ui {
namespace {

constexpr double cornerRadius = 6;

} // namespace

IconButton::IconButton(std::string symbol, double symbolSize, int side, QWidget* parent)
    : PaintedButton(parent), symbol_(std::move(symbol)), symbolSize_(symbolSize), side_(side) {
    setFixedSize(side, side);
}

void IconButton::setColor(Color color) {
    if (color == color_) return;
    color_ = color;
    update();
}

void IconButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.color(colors::primary.withOpacity(emphasis())));
    painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    QRectF place(0, 0, symbolSize_, symbolSize_);
    place.moveCenter(QRectF(rect()).center());
    const Color ink = isEnabled() ? color_ : colors::primary.withOpacity(0.25);
    paintSymbol(painter, place, symbol_, shades.color(ink));
    paintFocus(painter, rect(), cornerRadius);
}

} // namespace tarvo::ui
