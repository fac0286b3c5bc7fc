#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>

namespace tarvo {

/// A message bus of its own for one test; ends with it. Connections are closed with the bus.
class TestBus {
public:
    TestBus() {
        daemon_.start(QStringLiteral("dbus-daemon"), {QStringLiteral("--session"), QStringLiteral("--nofork"),
                                                      QStringLiteral("--print-address")});
        if (daemon_.waitForReadyRead(20'000)) address_ = QString::fromUtf8(daemon_.readLine()).trimmed();
    }
    ~TestBus() {
        for (const QString& name : connections_)
            QDBusConnection::disconnectFromBus(name);
        stop();
    }
    TestBus(const TestBus&) = delete;
    TestBus& operator=(const TestBus&) = delete;

    const QString& address() const { return address_; }
    /// A new connection with a unique name of its own.
    QDBusConnection connect() {
        connections_.append(
            QStringLiteral("test-%1-%2").arg(reinterpret_cast<quintptr>(this)).arg(connections_.size()));
        return QDBusConnection::connectToBus(address_, connections_.back());
    }
    /// The bus goes away.
    void stop() {
        daemon_.kill();
        daemon_.waitForFinished();
    }

private:
    QProcess daemon_;
    QString address_;
    QStringList connections_;
};

} // namespace tarvo
