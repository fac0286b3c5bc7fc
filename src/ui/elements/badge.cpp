#include "ui/elements/badge.h"

#include "ui/style/tabular_text.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr int horizontalPadding = 8;
constexpr int verticalPadding = 3;

} // namespace

Badge::Badge(BadgeFields fields, QWidget* parent) : Element(std::move(fields), parent) {
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize Badge::sizeHint() const {
    const TabularText text(roleFont(TextRole::badge));
    return {static_cast<int>(std::ceil(text.width(accessibleText()))) + 2 * horizontalPadding,
            static_cast<int>(std::ceil(text.metrics().height())) + 2 * verticalPadding};
}

void Badge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const Theme shades = theme();
    painter.setPen(Qt::NoPen);
    painter.setBrush(shades.color(fields().color.withOpacity(0.16)));
    painter.drawRoundedRect(QRectF(rect()), height() / 2.0, height() / 2.0);
    painter.setPen(shades.color(fields().color));
    const TabularText text(roleFont(TextRole::badge));
    const QRectF area = QRectF(rect()).adjusted(horizontalPadding, 0, -horizontalPadding, 0);
    text.draw(painter, area, Qt::AlignHCenter, text.elided(accessibleText(), area.width()));
}

} // namespace tarvo::ui
