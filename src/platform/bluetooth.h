#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

enum class BluetoothState { unknown, resetting, unsupported, unauthorized, poweredOff, poweredOn };

/// A low-energy accessory. Services and characteristics are named by their assigned numbers, e.g. "180F".
struct BluetoothPeripheral {
    std::string identifier; ///< a UUID, stable for the device
    std::optional<std::string> name;
    bool operator==(const BluetoothPeripheral&) const = default;
};

/// Called by a central manager on the main thread.
class BluetoothCentralDelegate {
public:
    virtual ~BluetoothCentralDelegate() = default;
    virtual void didUpdateState() = 0;
    virtual void didConnect(const BluetoothPeripheral& peripheral) = 0;
    virtual void didFailToConnect(const BluetoothPeripheral& peripheral) = 0;
    virtual void didDiscoverServices(const BluetoothPeripheral& peripheral,
                                     const std::vector<std::string>& services) = 0;
    virtual void didDiscoverCharacteristics(const BluetoothPeripheral& peripheral, const std::string& service,
                                            const std::vector<std::string>& characteristics) = 0;
    /// `value` is absent when the reading failed.
    virtual void didUpdateValue(const BluetoothPeripheral& peripheral, const std::string& characteristic,
                                const std::optional<std::vector<std::uint8_t>>& value) = 0;
};

/// The radio's accessories. Main thread only; nothing waits, answers come through the delegate, never from
/// inside a call. Requests for a peripheral that has gone answer with a failure or not at all.
class BluetoothCentralManager {
public:
    virtual ~BluetoothCentralManager() = default;
    virtual BluetoothState state() const = 0;
    /// Accessories connected to the system, by whomever, that offer the service.
    virtual std::vector<BluetoothPeripheral> connectedPeripherals(std::string_view service) = 0;
    virtual void connect(const BluetoothPeripheral& peripheral) = 0;
    virtual void cancelConnection(const BluetoothPeripheral& peripheral) = 0;
    virtual void discoverServices(const BluetoothPeripheral& peripheral,
                                  std::span<const std::string_view> services) = 0;
    virtual void discoverCharacteristics(const BluetoothPeripheral& peripheral, std::string_view service,
                                         std::span<const std::string_view> characteristics) = 0;
    virtual void readValue(const BluetoothPeripheral& peripheral, std::string_view characteristic) = 0;
};

/// Makes a manager that reports to the delegate, which outlives it, and shows no alert when the radio is off.
using BluetoothCentralManagerFactory =
    std::function<std::unique_ptr<BluetoothCentralManager>(BluetoothCentralDelegate& delegate)>;

/// Charge of an accessory that the system knows by another way than the radio's services.
struct AccessoryPower {
    std::string address; ///< upper case, with colons
    std::uint8_t percent = 0;
    bool operator==(const AccessoryPower&) const = default;
};

struct PairedBluetoothDevice {
    std::optional<std::string> name;
    std::optional<std::string> address;
    bool isConnected = false;
    std::uint32_t deviceClassMajor = 0;
    std::uint32_t deviceClassMinor = 0;
    bool operator==(const PairedBluetoothDevice&) const = default;
};

class PairedBluetoothDevices {
public:
    virtual ~PairedBluetoothDevices() = default;
    /// In the system's order; absent when there is no list. Waits for the answer: not on the main thread.
    virtual std::optional<std::vector<PairedBluetoothDevice>> pairedDevices() = 0;
};

} // namespace tarvo
