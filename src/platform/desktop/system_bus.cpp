#include "platform/desktop/system_bus.h"

#include <memory>
#include <mutex>
#include <utility>

namespace tarvo::desktop {

ConnectBus keptConnection(const QString& name, OpenBus open) {
    const auto oneAtATime = std::make_shared<std::mutex>();
    return [name, open = std::move(open), oneAtATime] {
        const std::lock_guard lock(*oneAtATime); // else one thread would close what another has just opened
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
