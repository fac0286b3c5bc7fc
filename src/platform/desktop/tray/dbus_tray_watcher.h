#pragma once

#include "platform/desktop/tray_watcher.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <cstdint>
#include <functional>
#include <string>

namespace tarvo::desktop {

/// Asks org.kde.StatusNotifierWatcher of the session bus, without waiting for it.
class DBusTrayWatcher : public QObject, public TrayWatcher {
    Q_OBJECT

public:
    using ProcessName = std::function<std::string(std::uint32_t pid)>;

    /// `processName` answers the name of a running process, empty when it is not known.
    DBusTrayWatcher(QDBusConnection bus, ProcessName processName);

    TrayState state() const override { return state_; }
    std::string hostProcess() const override { return hostProcess_; }

private slots:
    void ask();
    void disconnected();

private:
    void askForHostRegistered(int round);
    void askForHostName(int round);
    void askForProcess(int round, const QString& service);
    void become(TrayState state, std::string hostProcess);

    QDBusConnection bus_;
    QDBusServiceWatcher services_;
    ProcessName processName_;
    TrayState state_ = TrayState::unknown;
    std::string hostProcess_;
    int round_ = 0; ///< answers to earlier questions are not listened to
};

} // namespace tarvo::desktop
