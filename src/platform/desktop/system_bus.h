#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QString>

#include <functional>

namespace tarvo::desktop {

/// Makes or finds the connection to a bus. May wait: not on the main thread.
using ConnectBus = std::function<QDBusConnection()>;

/// A new connection that Qt knows by the given name from then on.
using OpenBus = std::function<QDBusConnection(const QString& name)>;

/// Opens a connection of that name when it is first asked for, and again when it was lost. Any thread.
ConnectBus keptConnection(const QString& name, OpenBus open);

/// The same for the system bus. The name is to be used for nothing else in the program.
ConnectBus systemBus(const QString& name);

/// Asks the bus whether the service runs; asking the service itself might start it.
QDBusMessage nameHasOwnerCall(const QString& service);

/// True when the reply to the above says so.
bool saysYes(const QDBusMessage& reply);

} // namespace tarvo::desktop
