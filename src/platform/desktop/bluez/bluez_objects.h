#pragma once

#include "platform/bluetooth.h"
#include "platform/desktop/bluez/device_class.h"
#include "platform/desktop/managed_objects.h"

#include <QString>
#include <QStringList>
#include <QVariantMap>

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

class QDBusMessage;

namespace tarvo::desktop {

/// A device as BlueZ describes it (org.bluez.Device1 and org.bluez.Battery1).
struct BluezDevice {
    std::string address; ///< upper case, with colons; empty when not told
    std::string alias;
    bool isPaired = false;
    bool isConnected = false;
    DeviceKind kind;
    std::optional<std::uint8_t> percentage; ///< absent without Battery1

    /// Absent for a device that is only called by its address.
    std::optional<std::string> name() const;
};

/// What BlueZ's object manager holds, by object path: the adapters and devices. Fed with whole answers and
/// with signals; what is of no interest is ignored.
class BluezObjects {
public:
    using Interfaces = ManagedInterfaces;

    void add(const QString& path, const Interfaces& interfaces);
    void remove(const QString& path, const QStringList& interfaces);
    void change(const QString& path, const QString& interface, const QVariantMap& changed);
    void clear();

    /// On when any adapter is on; without adapters there is no Bluetooth.
    BluetoothState state() const;
    const std::map<std::string, BluezDevice>& devices() const { return devices_; }
    const BluezDevice* device(const std::string& path) const;

private:
    std::map<std::string, bool> adapters_; ///< whether each is powered
    std::map<std::string, BluezDevice> devices_;
};

/// The paired ones by object path, as the platform-neutral seam tells them.
std::vector<PairedBluetoothDevice> pairedDevicesOf(const BluezObjects& objects);

/// The objects of a GetManagedObjects reply; absent when it is an error or of another form.
std::optional<BluezObjects> parseBluezObjects(const QDBusMessage& reply);

} // namespace tarvo::desktop
