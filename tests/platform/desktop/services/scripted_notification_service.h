#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>
#include <QVariantMap>

#include <functional>
#include <utility>
#include <vector>

namespace tarvo {

/// A notification service that keeps what it is told and answers as scripted.
class ScriptedNotificationService : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Notifications")

public:
    struct Notification {
        QString sender;
        uint replaces = 0;
        QString icon;
        QString summary;
        QString body;
        QStringList actions;
        QVariantMap hints;
        int expiry = 0;
    };

    explicit ScriptedNotificationService(QDBusConnection bus) : bus_(std::move(bus)) { appear(); }
    ~ScriptedNotificationService() override { vanish(); }

    void appear() {
        bus_.registerObject("/org/freedesktop/Notifications", this, QDBusConnection::ExportAllSlots);
        bus_.registerService("org.freedesktop.Notifications");
    }
    void vanish() {
        bus_.unregisterService("org.freedesktop.Notifications");
        bus_.unregisterObject("/org/freedesktop/Notifications");
    }

    QStringList capabilities{"body"};
    bool answers = true;           ///< false: requests are taken and never answered
    std::function<void()> onAsked; ///< when the capabilities are asked for
    int asked = 0;
    std::vector<Notification> shown;

public slots:
    QStringList GetCapabilities() {
        ++asked;
        if (onAsked) onAsked();
        if (!answers) setDelayedReply(true);
        return capabilities;
    }
    uint Notify(const QString& sender, uint replaces, const QString& icon, const QString& summary,
                const QString& body, const QStringList& actions, const QVariantMap& hints, int expiry) {
        shown.push_back({sender, replaces, icon, summary, body, actions, hints, expiry});
        if (!answers) setDelayedReply(true);
        return static_cast<uint>(shown.size());
    }

private:
    QDBusConnection bus_;
};

} // namespace tarvo
