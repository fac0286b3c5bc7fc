#pragma once

#include "core/shared_instance.h"
#include "platform/desktop/system_bus.h"
#include "platform/dispatcher.h"
#include "sensors/bluetooth_battery_monitor.h"
#include "sensors/bluetooth_devices_fetcher.h"

#include <functional>
#include <string>
#include <vector>

namespace tarvo {

/// The bus on which BlueZ stands. A recorded machine has none.
desktop::ConnectBus bluetoothBus(const std::string& root);

/// Bluetooth as the desktop program knows it: the charges of accessories and the paired devices. Nothing is
/// asked of the system before a view asks, and without BlueZ both stay empty. Main thread only.
class Bluetooth {
public:
    /// `root` is the folder of a recorded machine, empty for this one. The dispatcher outlives this.
    Bluetooth(desktop::ConnectBus connect, const std::string& root, Dispatcher& dispatcher);

    BluetoothBatteryMonitor& batteryMonitor() { return monitor_; }

    /// Lists the paired devices; waits for BlueZ, so not on the main thread. Outlives this.
    using PairedLister = std::function<std::vector<BluetoothDeviceInfo>()>;
    PairedLister pairedDevices() const;

private:
    desktop::ConnectBus connect_;
    BluetoothBatteryMonitor monitor_;
    SharedInstance<BluetoothBatteryMonitor> sharedMonitor_;
};

} // namespace tarvo
