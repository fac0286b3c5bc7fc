#include "platform/desktop/symbols/symbol_images.h"

#include <QPainter>

#include <cmath>

namespace tarvo::desktop {

namespace {

constexpr int maximumImages = 256;

QString toQString(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

void tint(QImage& image, const QColor& color) {
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
    painter.fillRect(image.rect(), color);
}

} // namespace

SymbolImages::SymbolImages() : images_(maximumImages) {}

QImage SymbolImages::image(std::string_view name, double size, double ratio, const QColor& color) {
    const int pixels = static_cast<int>(std::lround(size * ratio));
    const QString symbol = toQString(name);
    const QString key = symbol + QChar(u' ') + QString::number(pixels) + QChar(u' ') +
                        QString::number(ratio) + QChar(u' ') + QString::number(color.rgba(), 16);
    if (const QImage* cached = images_.object(key)) return *cached;

    QImage image = renderSymbol(symbol, pixels);
    if (image.isNull()) return image;
    tint(image, color);
    image.setDevicePixelRatio(ratio);
    // A picture that was painted on keeps what its painter needed; a copy of it has none of that.
    auto* const kept = new QImage(image.copy());
    images_.insert(key, kept);
    return *kept;
}

} // namespace tarvo::desktop
