#pragma once

#include "support/mock_service.h"

#include <QDBusMetaType>
#include <QDBusObjectPath>

#include <string>

namespace tarvo {

/// BlueZ as python3-dbusmock plays it, on a bus of the test's own.
class MockBluez : public MockService {
public:
    explicit MockBluez(TestBus& bus) : MockService(bus, "bluez5", "org.bluez") {
        qDBusRegisterMetaType<QMap<QString, QVariantMap>>();
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
};

} // namespace tarvo
