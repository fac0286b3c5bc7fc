#pragma once

#include "platform/bluetooth.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

struct BluetoothDeviceInfo {
    std::string name;    ///< else the address, else "Bluetooth"
    std::string address; ///< a fresh random UUID at every reading when the device has none
    bool isConnected = false;
    std::string symbol; ///< name of the symbol to show
    bool operator==(const BluetoothDeviceInfo&) const = default;
};

namespace BluetoothDevicesFetcher {

/// The paired devices, connected ones first, otherwise in the system's order. Waits for the system: not on
/// the main thread. Empty when there is no list.
std::vector<BluetoothDeviceInfo> paired(PairedBluetoothDevices& devices);

/// The symbol for a class of device (Bluetooth Assigned Numbers, section 2.8).
std::string_view symbol(std::uint32_t majorClass, std::uint32_t minorClass);

} // namespace BluetoothDevicesFetcher
} // namespace tarvo
