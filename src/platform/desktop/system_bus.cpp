#include "platform/desktop/system_bus.h"

#include <utility>

namespace tarvo::desktop {

ConnectBus keptConnection(const QString& name, OpenBus open) {
    return [name, open = std::move(open)] {
        const QDBusConnection kept(name);
        if (kept.isConnected()) return kept;
        QDBusConnection::disconnectFromBus(name); // else the lost one would be found again
        return open(name);
    };
}

ConnectBus systemBus(const QString& name) {
    return keptConnection(name, [](const QString& connectionName) {
        return QDBusConnection::connectToBus(QDBusConnection::SystemBus, connectionName);
    });
}

QDBusMessage nameHasOwnerCall(const QString& service) {
    static const auto bus = QStringLiteral("org.freedesktop.DBus");
    auto call = QDBusMessage::createMethodCall(bus, QStringLiteral("/org/freedesktop/DBus"), bus,
                                               QStringLiteral("NameHasOwner"));
    call << service;
    return call;
}

bool saysYes(const QDBusMessage& reply) {
    return reply.type() == QDBusMessage::ReplyMessage && !reply.arguments().isEmpty() &&
           reply.arguments().at(0).toBool();
}

} // namespace tarvo::desktop
