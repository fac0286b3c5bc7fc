#pragma once

#include <QDBusMessage>
#include <QMap>
#include <QString>
#include <QVariantMap>

#include <map>
#include <optional>

namespace tarvo::desktop {

/// Properties by the interface that they belong to.
using ManagedInterfaces = QMap<QString, QVariantMap>;
/// The objects of a service by their path.
using ManagedObjects = std::map<QString, ManagedInterfaces>;

/// Asks a service for everything it holds (org.freedesktop.DBus.ObjectManager); never starts it.
QDBusMessage managedObjectsCall(const QString& service, const QString& path);

/// The objects of the reply; absent when it is an error or of another form.
std::optional<ManagedObjects> parseManagedObjects(const QDBusMessage& reply);

} // namespace tarvo::desktop
