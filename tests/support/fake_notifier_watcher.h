#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QObject>
#include <QStringList>

namespace tarvo {

/// A tray's org.kde.StatusNotifierWatcher on a bus: remembers who registered, and reads its picture.
class FakeNotifierWatcher : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")
    Q_PROPERTY(bool IsStatusNotifierHostRegistered READ hasHost)

public:
    explicit FakeNotifierWatcher(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                            QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals |
                                QDBusConnection::ExportAllProperties);
    }
    ~FakeNotifierWatcher() override { vanish(); }

    void appear() { bus_.registerService(QStringLiteral("org.kde.StatusNotifierWatcher")); }
    void vanish() { bus_.unregisterService(QStringLiteral("org.kde.StatusNotifierWatcher")); }
    bool hasHost() const { return host_; }
    void setHost(bool present) {
        host_ = present;
        if (present) {
            emit StatusNotifierHostRegistered();
        } else {
            emit StatusNotifierHostUnregistered();
        }
    }

    QStringList items; ///< "name path", in order of registration
    bool readsPictures = true;

    void readPicture(const QString& name, const QString& path) {
        auto question = QDBusMessage::createMethodCall(
            name, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
        question << QStringLiteral("org.kde.StatusNotifierItem") << QStringLiteral("IconPixmap");
        bus_.asyncCall(question);
    }

public slots:
    void RegisterStatusNotifierItem(const QString& path) {
        items.append(message().service() + u' ' + path);
        if (readsPictures) readPicture(message().service(), path);
    }

signals:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    QDBusConnection bus_;
    bool host_ = true;
};

} // namespace tarvo
