#pragma once

#include "platform/bluetooth.h"

#include <memory>

namespace tarvo::macos_platform {

/// The system's low-energy central. No alert is shown when the radio is off. Main thread only, where the
/// answers arrive too.
class CoreBluetoothCentral : public BluetoothCentralManager {
public:
    /// The delegate outlives this.
    explicit CoreBluetoothCentral(BluetoothCentralDelegate& delegate);
    ~CoreBluetoothCentral() override;

    BluetoothState state() const override;
    std::vector<BluetoothPeripheral> connectedPeripherals(std::string_view service) override;
    void connect(const BluetoothPeripheral& peripheral) override;
    void cancelConnection(const BluetoothPeripheral& peripheral) override;
    void discoverServices(const BluetoothPeripheral& peripheral,
                          std::span<const std::string_view> services) override;
    void discoverCharacteristics(const BluetoothPeripheral& peripheral, std::string_view service,
                                 std::span<const std::string_view> characteristics) override;
    void readValue(const BluetoothPeripheral& peripheral, std::string_view characteristic) override;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tarvo::macos_platform
