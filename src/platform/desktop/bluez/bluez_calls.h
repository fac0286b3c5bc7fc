#pragma once

#include <QDBusMessage>

namespace tarvo::desktop::bluez {

/// Asks the bus whether BlueZ runs; asking BlueZ itself might start it.
QDBusMessage nameHasOwnerCall();

/// True when the reply to the above says so.
bool saysYes(const QDBusMessage& reply);

/// Asks BlueZ for everything it holds.
QDBusMessage managedObjectsCall();

} // namespace tarvo::desktop::bluez
