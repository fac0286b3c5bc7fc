#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QDBusVariant>
#include <QObject>

#include <functional>

namespace tarvo::desktop {

/// Whether the desktop wishes dark colours: setting "color-scheme" of "org.freedesktop.appearance", which the
/// settings portal tells (org.freedesktop.portal.Settings). Asks without waiting and follows every change; a
/// portal that is not running is not started, and heard when it comes. Main thread only.
class PortalColorScheme : public QObject {
    Q_OBJECT

public:
    explicit PortalColorScheme(QDBusConnection bus);

    /// False as well while nobody has answered.
    bool prefersDark() const { return prefersDark_; }

    /// Runs on the main thread after each change.
    std::function<void()> changed;

private slots:
    void settingChanged(const QString& space, const QString& key, const QDBusVariant& value);

private:
    void ask();
    void askBy(const QString& method, int round);
    void answered(const QDBusMessage& reply, const QString& method, int round);
    void become(bool prefersDark);

    QDBusConnection bus_;
    QDBusServiceWatcher portal_;
    int round_ = 0; ///< answers to earlier questions are old
    bool prefersDark_ = false;
};

} // namespace tarvo::desktop
