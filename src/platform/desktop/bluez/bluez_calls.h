#pragma once

#include <QDBusMessage>

namespace tarvo::desktop::bluez {

/// Asks BlueZ for everything it holds.
QDBusMessage managedObjectsCall();

} // namespace tarvo::desktop::bluez
