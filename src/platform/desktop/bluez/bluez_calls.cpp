#include "platform/desktop/bluez/bluez_calls.h"

#include "platform/desktop/bluez/bluez_names.h"

namespace tarvo::desktop::bluez {

QDBusMessage managedObjectsCall() {
    auto call =
        QDBusMessage::createMethodCall(service, root, objectManager, QStringLiteral("GetManagedObjects"));
    call.setAutoStartService(false);
    return call;
}

} // namespace tarvo::desktop::bluez
