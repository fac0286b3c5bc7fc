#pragma once

#include <QString>

/// Names of the StatusNotifierItem protocol as its hosts speak it (the ones of the KDE name space).
namespace tarvo::desktop::sni {

inline const QString watcherService = QStringLiteral("org.kde.StatusNotifierWatcher");
inline const QString watcherPath = QStringLiteral("/StatusNotifierWatcher");
inline const QString watcherInterface = QStringLiteral("org.kde.StatusNotifierWatcher");
inline const QString hostRegistered = QStringLiteral("StatusNotifierHostRegistered");
inline const QString hostUnregistered = QStringLiteral("StatusNotifierHostUnregistered");
inline const QString hostPrefix = QStringLiteral("org.kde.StatusNotifierHost");
inline const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");

} // namespace tarvo::desktop::sni
