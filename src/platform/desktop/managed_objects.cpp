#include "platform/desktop/managed_objects.h"

#include <QDBusArgument>
#include <QDBusObjectPath>

namespace tarvo::desktop {

QDBusMessage managedObjectsCall(const QString& service, const QString& path) {
    auto call =
        QDBusMessage::createMethodCall(service, path, QStringLiteral("org.freedesktop.DBus.ObjectManager"),
                                       QStringLiteral("GetManagedObjects"));
    call.setAutoStartService(false);
    return call;
}

std::optional<ManagedObjects> parseManagedObjects(const QDBusMessage& reply) {
    static const auto signature = QStringLiteral("a{oa{sa{sv}}}");
    if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != signature) return std::nullopt;
    ManagedObjects objects;
    const auto argument = reply.arguments().at(0).value<QDBusArgument>();
    argument.beginMap();
    while (!argument.atEnd()) {
        QDBusObjectPath path;
        ManagedInterfaces interfaces;
        argument.beginMapEntry();
        argument >> path >> interfaces;
        argument.endMapEntry();
        objects.insert_or_assign(path.path(), std::move(interfaces));
    }
    argument.endMap();
    return objects;
}

} // namespace tarvo::desktop
