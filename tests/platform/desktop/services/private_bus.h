#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace tarvo {

/// A message bus of the test's own, on which nothing is started by itself.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    bool isRunning() const { return !address_.isEmpty(); }
    QString address() const { return address_; }
    /// A connection of its own; ended with the bus.
    QDBusConnection connect();

private:
    QTemporaryDir folder_;
    QProcess daemon_;
    QString address_;
    QStringList connections_;
};

} // namespace tarvo
