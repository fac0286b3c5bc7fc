#include "sensors/bluetooth_battery_monitor.h"

#include "core/shared_instance.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace tarvo {
namespace {

constexpr std::string_view batteryServiceUUID = "180F";
constexpr std::string_view batteryLevelUUID = "2A19";

} // namespace

BluetoothBatteryMonitor::BluetoothBatteryMonitor(BluetoothCentralManagerFactory makeCentralManager)
    : makeCentralManager_(std::move(makeCentralManager)) {}

BluetoothBatteryMonitor::~BluetoothBatteryMonitor() = default;

BluetoothBatteryMonitor& BluetoothBatteryMonitor::shared() {
    return SharedInstance<BluetoothBatteryMonitor>::get();
}

void BluetoothBatteryMonitor::refresh() {
    if (!centralManager_) {
        centralManager_ = makeCentralManager_(*this);
        return;
    }
    if (centralManager_->state() != BluetoothState::poweredOn) return;
    results_.clear();
    const auto peripherals = centralManager_->connectedPeripherals(batteryServiceUUID);
    if (peripherals.empty()) {
        devices_.set({});
        return;
    }
    for (const auto& peripheral : peripherals)
        centralManager_->connect(peripheral);
}

void BluetoothBatteryMonitor::didUpdateState() {
    if (centralManager_ && centralManager_->state() == BluetoothState::poweredOn) refresh();
}

void BluetoothBatteryMonitor::didConnect(const BluetoothPeripheral& peripheral) {
    centralManager_->discoverServices(peripheral, std::array{batteryServiceUUID});
}

void BluetoothBatteryMonitor::didFailToConnect(const BluetoothPeripheral&) {}

void BluetoothBatteryMonitor::didDiscoverServices(const BluetoothPeripheral& peripheral,
                                                  const std::vector<std::string>& services) {
    for (const auto& service : services) {
        if (service != batteryServiceUUID) continue;
        centralManager_->discoverCharacteristics(peripheral, service, std::array{batteryLevelUUID});
    }
}

void BluetoothBatteryMonitor::didDiscoverCharacteristics(const BluetoothPeripheral& peripheral,
                                                         const std::string& /*service*/,
                                                         const std::vector<std::string>& characteristics) {
    for (const auto& characteristic : characteristics) {
        if (characteristic == batteryLevelUUID) centralManager_->readValue(peripheral, characteristic);
    }
}

void BluetoothBatteryMonitor::didUpdateValue(const BluetoothPeripheral& peripheral,
                                             const std::string& characteristic,
                                             const std::optional<std::vector<std::uint8_t>>& value) {
    if (characteristic == batteryLevelUUID && value && !value->empty()) {
        results_.insert_or_assign(
            peripheral.identifier,
            BluetoothAccessoryBattery{peripheral.name.value_or("Bluetooth"), value->front()});
        publish();
    }
    // Connected only for as long as it takes to read one value.
    centralManager_->cancelConnection(peripheral);
}

void BluetoothBatteryMonitor::publish() {
    std::vector<BluetoothAccessoryBattery> devices;
    devices.reserve(results_.size());
    for (const auto& [identifier, battery] : results_)
        devices.push_back(battery);
    std::stable_sort(devices.begin(), devices.end(),
                     [](const auto& a, const auto& b) { return a.name < b.name; });
    devices_.set(std::move(devices));
}

} // namespace tarvo
