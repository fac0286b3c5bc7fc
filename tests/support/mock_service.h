#pragma once

#include "support/qt_wait.h"
#include "support/test_bus.h"

#include <gtest/gtest.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

#include <string>
#include <utility>

namespace tarvo {

/// A service of the system bus as a template of python3-dbusmock plays it, on a bus of the test's own.
class MockService {
public:
    /// False where python3-dbusmock is not installed.
    static bool isInstalled() {
        QProcess probe;
        probe.start(python(), {QStringLiteral("-c"), QStringLiteral("import dbusmock.templates.bluez5")});
        return probe.waitForFinished(20'000) && probe.exitCode() == 0;
    }

    MockService(TestBus& bus, const char* mockTemplate, const char* name)
        : MockService(bus, QStringList{"--template", mockTemplate}, name) {}
    /// A service of no template; `object` is what the mock takes: name, path and interface.
    MockService(TestBus& bus, QStringList object, const char* name)
        : connection_(bus.connect()), address_(bus.address()), object_(std::move(object)), name_(name) {}
    ~MockService() { stop(); }
    MockService(const MockService&) = delete;
    MockService& operator=(const MockService&) = delete;

    bool start() {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), address_);
        process_.setProcessEnvironment(environment);
        process_.start(python(), QStringList{"-m", "dbusmock", "--system"} + object_);
        return waitUntil([this] { return connection_.interface()->isServiceRegistered(name_).value(); });
    }
    void stop() {
        process_.kill();
        process_.waitForFinished();
    }
    qint64 processId() const { return process_.processId(); }

protected:
    static constexpr const char* mockInterface = "org.freedesktop.DBus.Mock";

    QVariant call(const std::string& path, const char* interface, const char* method,
                  const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(name_, QString::fromStdString(path), interface, method);
        message.setArguments(arguments);
        const auto reply = connection_.call(message);
        if (reply.type() != QDBusMessage::ReplyMessage) {
            ADD_FAILURE() << method << ": " << reply.errorMessage().toStdString();
            return {};
        }
        return reply.arguments().value(0);
    }

private:
    static QString python() { return QStringLiteral("/usr/bin/python3"); }

    QDBusConnection connection_;
    QString address_;
    QStringList object_;
    QString name_;
    QProcess process_;
};

} // namespace tarvo
