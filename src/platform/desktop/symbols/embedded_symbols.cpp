#include "platform/desktop/symbols/drawn_symbols.h"
#include "platform/desktop/symbols/symbol_images.h"

#include <QFile>
#include <QImageReader>

namespace tarvo::desktop {

namespace {

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

} // namespace tarvo::desktop
