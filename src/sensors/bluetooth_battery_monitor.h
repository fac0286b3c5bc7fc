#pragma once

#include "core/published.h"
#include "platform/bluetooth.h"
#include "sensors/bluetooth_accessory_battery.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace tarvo {

/// Battery levels of connected low-energy accessories, read through the standard Battery Service in rounds
/// that the views start. Main thread only; the answers of a round arrive one by one and `devices` grows with
/// them.
class BluetoothBatteryMonitor : private BluetoothCentralDelegate {
public:
    explicit BluetoothBatteryMonitor(BluetoothCentralManagerFactory makeCentralManager);
    ~BluetoothBatteryMonitor() override;

    /// The instance that the whole process uses; see SharedInstance.
    static BluetoothBatteryMonitor& shared();

    /// Starts a round. The first one makes the central manager, and goes on once the radio says it is on.
    void refresh();

    /// By name.
    const std::vector<BluetoothAccessoryBattery>& devices() const { return *devices_; }
    Published<std::vector<BluetoothAccessoryBattery>>& publishedDevices() { return devices_; }

private:
    void didUpdateState() override;
    void didConnect(const BluetoothPeripheral& peripheral) override;
    void didFailToConnect(const BluetoothPeripheral& peripheral) override;
    void didDiscoverServices(const BluetoothPeripheral& peripheral,
                             const std::vector<std::string>& services) override;
    void didDiscoverCharacteristics(const BluetoothPeripheral& peripheral, const std::string& service,
                                    const std::vector<std::string>& characteristics) override;
    void didUpdateValue(const BluetoothPeripheral& peripheral, const std::string& characteristic,
                        const std::optional<std::vector<std::uint8_t>>& value) override;
    void publish();

    BluetoothCentralManagerFactory makeCentralManager_;
    std::unique_ptr<BluetoothCentralManager> centralManager_;
    /// What this round has read, by peripheral identifier: two accessories may bear one name.
    std::map<std::string, BluetoothAccessoryBattery> results_;
    Published<std::vector<BluetoothAccessoryBattery>> devices_;
};

} // namespace tarvo
