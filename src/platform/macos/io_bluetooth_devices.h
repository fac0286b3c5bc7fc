#pragma once

#include "platform/bluetooth.h"

namespace tarvo::macos_platform {

/// The devices that are paired with this Mac.
class IOBluetoothDevices : public PairedBluetoothDevices {
public:
    std::optional<std::vector<PairedBluetoothDevice>> pairedDevices() override;
};

} // namespace tarvo::macos_platform
