#include "ui/controls/thin_scroll_bar.h"

#include "ui/style/theme.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>

namespace tarvo::ui {

ThinScrollBar::ThinScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {
    setFixedWidth(8);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
}

void ThinScrollBar::paintEvent(QPaintEvent*) {
    if (maximum() <= minimum()) return;
    QStyleOptionSlider option;
    initStyleOption(&option);
    const QRectF thumb =
        style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Theme(palette()).color(colors::primary.withOpacity(isSliderDown() ? 0.4 : 0.22)));
    const QRectF slim = thumb.adjusted(2, 2, -2, -2);
    painter.drawRoundedRect(slim, slim.width() / 2, slim.width() / 2);
}

} // namespace tarvo::ui
