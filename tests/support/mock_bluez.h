#pragma once

#include "support/qt_wait.h"
#include "support/test_bus.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QProcess>
#include <QProcessEnvironment>

#include <string>

namespace tarvo {

/// BlueZ as python3-dbusmock plays it, on a bus of the test's own.
class MockBluez {
public:
    /// False where python3-dbusmock is not installed.
    static bool isInstalled() {
        QProcess probe;
        probe.start(python(), {QStringLiteral("-c"), QStringLiteral("import dbusmock.templates.bluez5")});
        return probe.waitForFinished(20'000) && probe.exitCode() == 0;
    }

    explicit MockBluez(TestBus& bus) : connection_(bus.connect()), address_(bus.address()) {
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
    }
    ~MockBluez() { stop(); }
    MockBluez(const MockBluez&) = delete;
    MockBluez& operator=(const MockBluez&) = delete;

    bool start() {
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("DBUS_SYSTEM_BUS_ADDRESS"), address_);
        process_.setProcessEnvironment(environment);
        process_.start(python(),
                       {QStringLiteral("-m"), QStringLiteral("dbusmock"), QStringLiteral("--system"),
                        QStringLiteral("--template"), QStringLiteral("bluez5")});
        return waitUntil([this] {
            return connection_.interface()->isServiceRegistered(QStringLiteral("org.bluez")).value();
        });
    }
    void stop() {
        process_.kill();
        process_.waitForFinished();
    }

    void addAdapter(const char* name) { mock("AddAdapter", {name, "Test machine"}); }
    void removeAdapter(const char* name) { mock("RemoveAdapterWithDevices", {name}); }
    void setPowered(const char* adapter, bool powered) {
        update(std::string("/org/bluez/") + adapter, "org.bluez.Adapter1", {{"Powered", powered}});
    }
    /// A paired and connected device; its object path.
    std::string addDevice(const char* adapter, const char* address, const char* alias) {
        const auto path = mock("AddDevice", {adapter, address, alias}).toString().toStdString();
        update(path, "org.bluez.Device1", {{"Paired", true}, {"Connected", true}});
        return path;
    }
    void setDevice(const std::string& path, const QVariantMap& properties) {
        update(path, "org.bluez.Device1", properties);
    }
    /// Gives the device a battery and tells so.
    void addBattery(const std::string& path, uchar percentage) {
        const QVariantMap properties{{"Percentage", QVariant::fromValue(percentage)}};
        call(path, mockInterface, "AddProperties", {"org.bluez.Battery1", properties});
        const QMap<QString, QVariantMap> interfaces{{"org.bluez.Battery1", properties}};
        emitSignal("InterfacesAdded", "oa{sa{sv}}",
                   {QVariant::fromValue(QDBusObjectPath(QString::fromStdString(path))),
                    QVariant::fromValue(interfaces)});
    }
    void setBattery(const std::string& path, uchar percentage) {
        update(path, "org.bluez.Battery1", {{"Percentage", QVariant::fromValue(percentage)}});
    }
    /// Waits until the mock has sent everything that it was told to send.
    void settle() { call("/", "org.freedesktop.DBus.Peer", "Ping", {}); }

private:
    static constexpr const char* mockInterface = "org.freedesktop.DBus.Mock";

    static QString python() { return QStringLiteral("/usr/bin/python3"); }

    QVariant mock(const char* method, const QVariantList& arguments) {
        return call("/", "org.bluez.Mock", method, arguments);
    }
    void update(const std::string& path, const char* interface, const QVariantMap& properties) {
        call(path, mockInterface, "UpdateProperties", {interface, properties});
    }
    void emitSignal(const char* name, const char* signature, const QVariantList& arguments) {
        call("/", mockInterface, "EmitSignal",
             {"org.freedesktop.DBus.ObjectManager", name, signature, QVariant(arguments)});
    }
    QVariant call(const std::string& path, const char* interface, const char* method,
                  const QVariantList& arguments) {
        auto message =
            QDBusMessage::createMethodCall("org.bluez", QString::fromStdString(path), interface, method);
        message.setArguments(arguments);
        const auto reply = connection_.call(message);
        if (reply.type() != QDBusMessage::ReplyMessage) {
            ADD_FAILURE() << method << ": " << reply.errorMessage().toStdString();
            return {};
        }
        return reply.arguments().value(0);
    }

    QDBusConnection connection_;
    QString address_;
    QProcess process_;
};

} // namespace tarvo
