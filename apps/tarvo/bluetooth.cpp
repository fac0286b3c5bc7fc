#include "bluetooth.h"

#include "platform/desktop/bluez/bluez_central_manager.h"
#include "platform/desktop/bluez/bluez_paired_devices.h"
#include "platform/linux/accessory_batteries.h"

#include <memory>
#include <utility>

namespace tarvo {

namespace {

BluetoothCentralManagerFactory centralManagers(desktop::ConnectBus connect, const std::string& root,
                                               Dispatcher& dispatcher) {
    auto readPower = [folder = linux_platform::Root(root)] {
        return linux_platform::readAccessoryBatteries(folder);
    };
    return [connect = std::move(connect), readPower = std::move(readPower),
            &dispatcher](BluetoothCentralDelegate& delegate) {
        return std::make_unique<desktop::BluezCentralManager>(connect, readPower, dispatcher, delegate);
    };
}

} // namespace

desktop::ConnectBus bluetoothBus(const std::string& root) {
    const auto name = QStringLiteral("tarvo-bluetooth");
    if (root.empty()) return desktop::systemBus(name);
    return [name] { return QDBusConnection(name); };
}

Bluetooth::Bluetooth(desktop::ConnectBus connect, const std::string& root, Dispatcher& dispatcher)
    : connect_(std::move(connect)), monitor_(centralManagers(connect_, root, dispatcher)),
      sharedMonitor_(monitor_) {}

Bluetooth::PairedLister Bluetooth::pairedDevices() const {
    const auto devices = std::make_shared<desktop::BluezPairedDevices>(connect_);
    return [devices] { return BluetoothDevicesFetcher::paired(*devices); };
}

} // namespace tarvo
