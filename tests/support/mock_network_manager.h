#pragma once

#include "support/mock_service.h"

#include <QByteArray>
#include <QDBusObjectPath>
#include <QDBusVariant>
#include <QVariantMap>

namespace tarvo {

/// NetworkManager as python3-dbusmock plays it. Devices and connections are known by their object paths.
class MockNetworkManager : public MockService {
public:
    explicit MockNetworkManager(TestBus& bus)
        : MockService(bus, "networkmanager", "org.freedesktop.NetworkManager") {}

    std::string addWiredDevice(const char* name) {
        return mock("AddEthernetDevice", {name, name, activated});
    }
    std::string addWiFiDevice(const char* name) { return mock("AddWiFiDevice", {name, name, activated}); }
    /// The device has joined a network of that name.
    void join(const std::string& device, const QByteArray& ssid) {
        const auto number = QString::number(++accessPoints_);
        const auto accessPoint =
            mock("AddAccessPoint", {QString::fromStdString(device), number, "replaced", "00:11:22:33:44:55",
                                    2U, 2412U, 54'000U, QVariant::fromValue(uchar{80}), 0U});
        set(accessPoint, "org.freedesktop.NetworkManager.AccessPoint", "Ssid", ssid);
        addPath(device, wireless, "ActiveAccessPoint", accessPoint);
    }
    /// The device has joined none.
    void leave(const std::string& device) { addPath(device, wireless, "ActiveAccessPoint", "/"); }
    void setMode(const std::string& device, uint mode) { set(device, wireless, "Mode", mode); }
    void setManaged(const std::string& device, bool managed) {
        set(device, "org.freedesktop.NetworkManager.Device", "Managed", managed);
    }
    /// Traffic goes through the device.
    void makePrimary(const std::string& device) {
        const std::string connection = manager + std::string("/ActiveConnection/1");
        set(device, "org.freedesktop.NetworkManager.Device", "ActiveConnection", path(connection));
        addPath(manager, service, "PrimaryConnection", connection);
    }

private:
    static constexpr int activated = 100;
    static constexpr const char* manager = "/org/freedesktop/NetworkManager";
    static constexpr const char* service = "org.freedesktop.NetworkManager";
    static constexpr const char* wireless = "org.freedesktop.NetworkManager.Device.Wireless";

    static QVariant path(const std::string& text) {
        return QVariant::fromValue(QDBusObjectPath(QString::fromStdString(text)));
    }
    std::string mock(const char* method, const QVariantList& arguments) {
        return call(manager, mockInterface, method, arguments).toString().toStdString();
    }
    void set(const std::string& object, const char* interface, const char* name, const QVariant& value) {
        call(object, "org.freedesktop.DBus.Properties", "Set",
             {interface, name, QVariant::fromValue(QDBusVariant(value))});
    }
    void addPath(const std::string& object, const char* interface, const char* name,
                 const std::string& value) {
        call(object, mockInterface, "AddProperties", {interface, QVariantMap{{name, path(value)}}});
    }

    int accessPoints_ = 0;
};

} // namespace tarvo
