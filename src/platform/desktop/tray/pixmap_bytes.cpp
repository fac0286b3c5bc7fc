#include "platform/desktop/tray/pixmap_bytes.h"

#include <QtEndian>

namespace tarvo::desktop {

TrayPixmap toTrayPixmap(const QImage& image) {
    const QImage plain = image.convertToFormat(QImage::Format_ARGB32);
    TrayPixmap pixmap{plain.width(), plain.height(), {}};
    pixmap.bytes.reserve(static_cast<qsizetype>(plain.width()) * plain.height() * 4);
    for (int y = 0; y < plain.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(plain.constScanLine(y));
        for (int x = 0; x < plain.width(); ++x) {
            const QRgb bigEndian = qToBigEndian(row[x]);
            pixmap.bytes.append(reinterpret_cast<const char*>(&bigEndian), sizeof bigEndian);
        }
    }
    return pixmap;
}

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap) {
    argument.beginStructure();
    argument << pixmap.width << pixmap.height << pixmap.bytes;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap) {
    argument.beginStructure();
    argument >> pixmap.width >> pixmap.height >> pixmap.bytes;
    argument.endStructure();
    return argument;
}

} // namespace tarvo::desktop
