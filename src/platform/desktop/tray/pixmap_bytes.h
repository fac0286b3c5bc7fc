#pragma once

#include <QByteArray>
#include <QDBusArgument>
#include <QImage>
#include <QList>
#include <QMetaType>

namespace tarvo::desktop {

/// A picture as trays take it: (iiay).
struct TrayPixmap {
    int width = 0;
    int height = 0;
    QByteArray bytes; ///< ARGB, one byte each, not premultiplied, row after row without gaps
    bool operator==(const TrayPixmap&) const = default;
};
using TrayPixmaps = QList<TrayPixmap>;

TrayPixmap toTrayPixmap(const QImage& image);

QDBusArgument& operator<<(QDBusArgument& argument, const TrayPixmap& pixmap);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayPixmap& pixmap);

} // namespace tarvo::desktop

Q_DECLARE_METATYPE(tarvo::desktop::TrayPixmap)
