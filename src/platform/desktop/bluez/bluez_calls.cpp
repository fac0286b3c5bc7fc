#include "platform/desktop/bluez/bluez_calls.h"

#include "platform/desktop/bluez/bluez_names.h"

namespace tarvo::desktop::bluez {

QDBusMessage nameHasOwnerCall() {
    auto call = QDBusMessage::createMethodCall(bus, busPath, bus, QStringLiteral("NameHasOwner"));
    call << service;
    return call;
}

bool saysYes(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty() &&
           reply.arguments().at(0).toBool();
}

QDBusMessage managedObjectsCall() {
    auto call =
        QDBusMessage::createMethodCall(service, root, objectManager, QStringLiteral("GetManagedObjects"));
    call.setAutoStartService(false);
    return call;
}

} // namespace tarvo::desktop::bluez
