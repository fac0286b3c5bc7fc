#pragma once

#include "core/shared_instance.h"
#include "platform/bluetooth.h"
#include "sensors/bluetooth_battery_monitor.h"
#include "sensors/bluetooth_devices_fetcher.h"

#include <functional>
#include <memory>
#include <vector>

namespace tarvo {

/// Where a system tells of Bluetooth.
struct BluetoothSources {
    BluetoothCentralManagerFactory centralManagers;
    std::shared_ptr<PairedBluetoothDevices> pairedDevices;
};

/// Bluetooth as the desktop program knows it: the charges of accessories and the paired devices. Nothing is
/// asked of the system before a view asks. Main thread only.
class Bluetooth {
public:
    explicit Bluetooth(BluetoothSources sources);

    BluetoothBatteryMonitor& batteryMonitor() { return monitor_; }

    /// Lists the paired devices; waits for the system, so not on the main thread. Outlives this.
    using PairedLister = std::function<std::vector<BluetoothDeviceInfo>()>;
    PairedLister pairedDevices() const;

private:
    std::shared_ptr<PairedBluetoothDevices> pairedDevices_;
    BluetoothBatteryMonitor monitor_;
    SharedInstance<BluetoothBatteryMonitor> sharedMonitor_;
};

} // namespace tarvo
