#pragma once

#include "platform/bluetooth.h"

#include <string>
#include <vector>

namespace tarvo {

/// A central manager that records what it is asked; the test answers through `delegate`.
class ScriptedCentralManager : public BluetoothCentralManager {
public:
    /// What outlives the manager: the test's side of it.
    struct Radio {
        BluetoothCentralDelegate* delegate = nullptr; ///< null until a manager was made
        int managersMade = 0;
        BluetoothState state = BluetoothState::unknown;
        std::vector<BluetoothPeripheral> connected;
        std::vector<std::string> calls;

        BluetoothCentralManagerFactory factory() {
            return [this](BluetoothCentralDelegate& made) {
                delegate = &made;
                ++managersMade;
                return std::make_unique<ScriptedCentralManager>(*this);
            };
        }
    };

    explicit ScriptedCentralManager(Radio& radio) : radio_(radio) {}

    BluetoothState state() const override { return radio_.state; }
    std::vector<BluetoothPeripheral> connectedPeripherals(std::string_view service) override {
        note("connected", service);
        return radio_.connected;
    }
    void connect(const BluetoothPeripheral& peripheral) override { note("connect", peripheral.identifier); }
    void cancelConnection(const BluetoothPeripheral& peripheral) override {
        note("cancel", peripheral.identifier);
    }
    void discoverServices(const BluetoothPeripheral& peripheral,
                          std::span<const std::string_view> services) override {
        note("services", peripheral.identifier);
        for (const auto service : services)
            radio_.calls.back().append(" ").append(service);
    }
    void discoverCharacteristics(const BluetoothPeripheral& peripheral, std::string_view service,
                                 std::span<const std::string_view> characteristics) override {
        note("characteristics", peripheral.identifier);
        radio_.calls.back().append(" ").append(service);
        for (const auto characteristic : characteristics)
            radio_.calls.back().append(" ").append(characteristic);
    }
    void readValue(const BluetoothPeripheral& peripheral, std::string_view characteristic) override {
        note("read", peripheral.identifier);
        radio_.calls.back().append(" ").append(characteristic);
    }

private:
    void note(std::string_view verb, std::string_view object) {
        radio_.calls.push_back(std::string(verb).append(" ").append(object));
    }

    Radio& radio_;
};

} // namespace tarvo
