#include "ui/elements/card_background.h"

#include "ui/style/metrics.h"
#include "ui/style/theme.h"

#include <QPainter>
#include <QVBoxLayout>

namespace tarvo::ui {

CardBackground::CardBackground(QWidget* parent) : QWidget(parent) {
    setContentsMargins(metrics::cardPadding, metrics::cardPadding, metrics::cardPadding,
                       metrics::cardPadding);
}

CardBackground::CardBackground(QWidget* content, QWidget* parent) : CardBackground(parent) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
}

void CardBackground::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme theme(palette());
    const double inset = metrics::cardOutline / 2;
    painter.setBrush(theme.card());
    painter.setPen(
        QPen(theme.color(colors::white.withOpacity(metrics::cardOutlineOpacity)), metrics::cardOutline));
    painter.drawRoundedRect(QRectF(rect()).adjusted(inset, inset, -inset, -inset), metrics::cardRadius,
                            metrics::cardRadius);
}

} // namespace tarvo::ui
