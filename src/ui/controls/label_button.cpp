#include "ui/controls/label_button.h"

#include "ui/style/metrics.h"
#include "ui/style/symbol.h"
#include "ui/style/tabular_text.h"

#include <QPainter>

#include <cmath>

namespace tarvo::ui {
namespace {

constexpr double symbolSize = 11;
constexpr int horizontalPadding = 10;
constexpr int buttonHeight = 24;
constexpr double cornerRadius = 7;

} // namespace

LabelButton::LabelButton(std::string symbol, Color color, QWidget* parent)
    : PaintedButton(parent), symbol_(std::move(symbol)), color_(color) {
    setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

void LabelButton::setProminent(bool prominent) {
    isProminent_ = prominent;
    update();
}

QSize LabelButton::sizeHint() const {
    const double text = TabularText(roleFont(TextRole::button)).width(accessibleName());
    const double symbol = symbol_.empty() ? 0 : symbolSize + metrics::small;
    return {static_cast<int>(std::ceil(text + symbol)) + 2 * horizontalPadding, buttonHeight};
}

void LabelButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintGround(painter);
    const Theme shades = theme();
    const QColor ink = shades.color(isProminent_ ? colors::white : colors::primary);
    QRectF line = QRectF(rect()).adjusted(horizontalPadding, 0, -horizontalPadding, 0);
    if (!symbol_.empty()) {
        const QRectF place(line.left(), line.center().y() - symbolSize / 2, symbolSize, symbolSize);
        paintSymbol(painter, place, symbol_, isProminent_ ? ink : shades.color(color_));
        line.setLeft(place.right() + metrics::small);
    }
    painter.setPen(ink);
    const TabularText text(roleFont(TextRole::button));
    text.draw(painter, line, Qt::AlignLeft, text.elided(accessibleName(), line.width()));
    paintFocus(painter, rect(), cornerRadius);
}

void LabelButton::paintGround(QPainter& painter) const {
    const Theme shades = theme();
    painter.setPen(Qt::NoPen);
    painter.setBrush(isProminent_ ? shades.groundGradient(color_, rect())
                                  : QBrush(shades.color(colors::primary.withOpacity(0.06 + emphasis()))));
    painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
    if (!isProminent_ || emphasis() <= 0) return;
    painter.setBrush(shades.color(colors::white.withOpacity(emphasis())));
    painter.drawRoundedRect(QRectF(rect()), cornerRadius, cornerRadius);
}

} // namespace tarvo::ui
