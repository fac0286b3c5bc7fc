#pragma once

#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QObject>
#include <QStringList>

namespace tarvo {

/// A tray's org.kde.StatusNotifierWatcher on a bus: remembers who registered.
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

public slots:
    void RegisterStatusNotifierItem(const QString& path) { items.append(message().service() + u' ' + path); }

signals:
    void StatusNotifierHostRegistered();
    void StatusNotifierHostUnregistered();

private:
    QDBusConnection bus_;
    bool host_ = true;
};

} // namespace tarvo
