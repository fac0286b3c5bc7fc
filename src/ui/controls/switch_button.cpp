#include "ui/controls/switch_button.h"

#include <QPainter>

namespace tarvo::ui {

SwitchButton::SwitchButton(QWidget* parent) : PaintedButton(parent) {
    setCheckable(true);
    setFixedSize(34, 20);
}

void SwitchButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    const QRectF track = QRectF(rect()).adjusted(1, 1, -1, -1);
    const double radius = track.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(isChecked() ? shades.gradient(colors::green, track)
                                 : QBrush(shades.color(colors::primary.withOpacity(0.18 + emphasis()))));
    painter.drawRoundedRect(track, radius, radius);
    const double side = track.height() - 4;
    const double left = isChecked() ? track.right() - side - 2 : track.left() + 2;
    painter.setBrush(shades.color(colors::white));
    painter.drawEllipse(QRectF(left, track.top() + 2, side, side));
    paintFocus(painter, rect(), radius + 1);
}

} // namespace tarvo::ui
