#pragma once

#include "platform/desktop/tray/pixmap_bytes.h"

#include <QDBusArgument>
#include <QMetaType>
#include <QString>

#include <string>

namespace tarvo::desktop {

/// A tool tip as trays take it: (sa(iiay)ss).
struct TrayToolTip {
    QString iconName;
    TrayPixmaps iconPixmaps;
    QString title;
    QString text; ///< markup
    bool operator==(const TrayToolTip&) const = default;
};

/// Plain text as markup that every tray's toolkit reads the same way; lines stay separated by a line feed.
QString escapedMarkup(const std::string& plain);

QDBusArgument& operator<<(QDBusArgument& argument, const TrayToolTip& toolTip);
const QDBusArgument& operator>>(const QDBusArgument& argument, TrayToolTip& toolTip);

} // namespace tarvo::desktop

Q_DECLARE_METATYPE(tarvo::desktop::TrayToolTip)
