#include "platform/desktop/symbols/symbol_images.h"

#include "platform/desktop/symbols/drawn_symbols.h"

#include <QFile>
#include <QImageReader>
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

// The reader finds the SVG code as a plug-in, so that a program that shows no symbol never loads it.
QImage renderEmbedded(const QString& name, int pixels) {
    QFile file(QStringLiteral(":/symbols/") + name);
    if (!file.open(QIODevice::ReadOnly)) return {};
    QImageReader reader(&file, "svg");
    reader.setScaledSize(QSize(pixels, pixels));
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace

QImage renderSymbol(const QString& name, int pixels) {
    if (QImage embedded = renderEmbedded(name, pixels); !embedded.isNull()) return embedded;
    return drawSymbol(name, pixels);
}

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
