#include "ui/elements/gradient_symbol.h"

#include "ui/style/accent.h"
#include "ui/style/symbol.h"

#include <QPainter>

namespace tarvo::ui {

GradientSymbol::GradientSymbol(QWidget* parent) : Element(parent) {
    setFixedSize(18, 18);
}

void GradientSymbol::paintEvent(QPaintEvent*) {
    const double ratio = devicePixelRatioF();
    QImage image(size() * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter symbol(&image);
    paintSymbol(symbol, rect(), fields().symbol, Qt::black);
    QLinearGradient gradient(QRectF(rect()).topLeft(), QRectF(rect()).bottomRight());
    const auto colors = gradientColors(fields().theme);
    gradient.setColorAt(0, theme().color(colors[0]));
    gradient.setColorAt(1, theme().color(colors[1]));
    symbol.setCompositionMode(QPainter::CompositionMode_SourceIn);
    symbol.fillRect(rect(), gradient);
    symbol.end();
    QPainter(this).drawImage(0, 0, image);
}

} // namespace tarvo::ui
