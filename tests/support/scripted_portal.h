#pragma once

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QVariantMap>

#include <string>
#include <utility>
#include <vector>

namespace tarvo {

/// A desktop portal with global shortcuts that keeps what it is asked and answers as scripted.
class ScriptedPortal : public QDBusVirtualObject {
    Q_OBJECT

public:
    explicit ScriptedPortal(QDBusConnection bus) : bus_(std::move(bus)) { appear(); }
    ~ScriptedPortal() override { vanish(); }

    void appear() {
        bus_.registerVirtualObject(root, this, QDBusConnection::SubPath);
        bus_.registerService(service);
    }
    void vanish() {
        bus_.unregisterService(service);
        bus_.unregisterObject(root);
    }
    /// What the desktop sends when the keys are pressed.
    void press(const QString& pressed, const QString& where) {
        auto signal = QDBusMessage::createSignal(root, shortcuts, "Activated");
        signal << QVariant::fromValue(QDBusObjectPath(where)) << pressed << qulonglong{1} << QVariantMap();
        bus_.send(signal);
    }

    bool hasShortcuts = true;
    uint sessionResponse = 0; ///< 0: granted, 1: the user said no
    uint bindResponse = 0;
    bool sendsPath = false; ///< the session as an object path, as some portals do
    std::vector<std::string> calls;
    QString session = "/org/freedesktop/portal/desktop/session/1_1/tarvo";
    QString shortcut, trigger, description, applicationID, boundIn;

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const QString method = message.member();
        calls.push_back(method.toStdString());
        const auto arguments = message.arguments();
        if (method == "Register") applicationID = arguments.at(0).toString();
        if (method == "Get") return answerVersion(message, connection);
        if (method == "CreateSession") {
            const QVariant handle = sendsPath ? QVariant::fromValue(QDBusObjectPath(session)) : session;
            return answerRequest(message, connection, sessionResponse, {{"session_handle", handle}});
        }
        if (method == "BindShortcuts") {
            boundIn = arguments.at(0).value<QDBusObjectPath>().path();
            readShortcuts(arguments.at(1).value<QDBusArgument>());
            return answerRequest(message, connection, bindResponse, {});
        }
        connection.send(message.createReply());
        return true;
    }

private:
    static inline const QString service = "org.freedesktop.portal.Desktop";
    static inline const QString root = "/org/freedesktop/portal/desktop";
    static inline const QString shortcuts = "org.freedesktop.portal.GlobalShortcuts";

    bool answerVersion(const QDBusMessage& message, const QDBusConnection& connection) const {
        connection.send(hasShortcuts
                            ? message.createReply(QVariant::fromValue(QDBusVariant(uint{1})))
                            : message.createErrorReply(QDBusError::InvalidArgs, "no such interface"));
        return true;
    }
    // The answer follows at once: a caller that subscribes only after its call would miss it.
    bool answerRequest(const QDBusMessage& message, const QDBusConnection& connection, uint response,
                       const QVariantMap& results) {
        QString sender = message.service().mid(1);
        sender.replace('.', '_');
        const QVariantMap options = lastMap(message);
        const QString path = root + "/request/" + sender + '/' + options.value("handle_token").toString();
        auto signal = QDBusMessage::createSignal(path, "org.freedesktop.portal.Request", "Response");
        signal << response << results;
        connection.send(signal);
        connection.send(message.createReply(QVariant::fromValue(QDBusObjectPath(path))));
        return true;
    }
    static QVariantMap lastMap(const QDBusMessage& message) {
        QVariantMap map;
        message.arguments().constLast().value<QDBusArgument>() >> map;
        return map;
    }
    void readShortcuts(const QDBusArgument& list) {
        QVariantMap options;
        list.beginArray();
        list.beginStructure();
        list >> shortcut >> options;
        list.endStructure();
        list.endArray();
        trigger = options.value("preferred_trigger").toString();
        description = options.value("description").toString();
    }

    QDBusConnection bus_;
};

} // namespace tarvo
