#include "platform/desktop/symbols/symbol_images.h"
#include "platform/symbol_picture.h"

#include <QImage>

namespace tarvo::desktop {

QImage renderSymbol(const QString& name, int pixels) {
    const auto picture = symbolPicture(name.toStdString(), pixels);
    if (!picture) return {};
    const QImage borrowed(picture->data(), pixels, pixels, QImage::Format_RGBA8888_Premultiplied);
    return borrowed.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace tarvo::desktop
