#include "linux/bluez.h"

#include "platform/desktop/bluez/bluez_central_manager.h"
#include "platform/desktop/bluez/bluez_paired_devices.h"
#include "platform/linux/accessory_batteries.h"

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

BluetoothSources bluezSources(const desktop::ConnectBus& connect, const std::string& root,
                              Dispatcher& dispatcher) {
    return {.centralManagers = centralManagers(connect, root, dispatcher),
            .pairedDevices = std::make_shared<desktop::BluezPairedDevices>(connect)};
}

} // namespace tarvo
