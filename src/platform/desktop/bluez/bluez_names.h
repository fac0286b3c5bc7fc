#pragma once

#include <QString>

/// Names of BlueZ's interface, doc/org.bluez.Device.rst and its neighbours in BlueZ.
namespace tarvo::desktop::bluez {

inline const QString service = QStringLiteral("org.bluez");
inline const QString bus = QStringLiteral("org.freedesktop.DBus");
inline const QString busPath = QStringLiteral("/org/freedesktop/DBus");
inline const QString root = QStringLiteral("/");
inline const QString objectManager = QStringLiteral("org.freedesktop.DBus.ObjectManager");
inline const QString propertiesInterface = QStringLiteral("org.freedesktop.DBus.Properties");
inline const QString adapterInterface = QStringLiteral("org.bluez.Adapter1");
inline const QString deviceInterface = QStringLiteral("org.bluez.Device1");
inline const QString batteryInterface = QStringLiteral("org.bluez.Battery1");
inline const QString percentage = QStringLiteral("Percentage");

/// Nothing on the bus is waited for longer than this.
inline constexpr int timeoutMilliseconds = 2000;

} // namespace tarvo::desktop::bluez
