#pragma once

#include <QDBusConnection>
#include <QDBusVirtualObject>
#include <QString>

#include <functional>
#include <map>

namespace tarvo::desktop {

/// The program's name on the session bus, which one instance has, and the methods that other programs call
/// there: without arguments and without results. Main thread only.
class SessionService : public QDBusVirtualObject {
    Q_OBJECT

public:
    enum class Claim {
        ours,
        taken,     ///< another instance has the name
        impossible ///< no bus, or one that does not answer
    };

    /// `name` is that of the service and of the interface; the object's path follows from it.
    SessionService(QDBusConnection bus, QString name);
    ~SessionService() override;

    /// What a call of the method runs. Calls arrive when the event loop runs, so that the methods may be set
    /// after the name was claimed.
    void setMethod(const QString& method, std::function<void()> called);

    /// Waits for the bus, two seconds at most.
    Claim claim();
    /// Calls a method of the instance that has the name; waits five seconds at most. False when it does not
    /// answer.
    bool callOwner(const QString& method);

    QString introspect(const QString& path) const override;
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override;

private:
    QDBusConnection bus_;
    QString name_;
    QString path_;
    std::map<QString, std::function<void()>> methods_;
};

} // namespace tarvo::desktop
