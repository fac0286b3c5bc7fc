#pragma once

#include "platform/bluetooth.h"
#include "platform/desktop/system_bus.h"

namespace tarvo::desktop {

/// The paired devices as BlueZ knows them at the moment; no list without BlueZ.
class BluezPairedDevices : public PairedBluetoothDevices {
public:
    explicit BluezPairedDevices(ConnectBus connect) : connect_(std::move(connect)) {}

    std::optional<std::vector<PairedBluetoothDevice>> pairedDevices() override;

private:
    ConnectBus connect_;
};

} // namespace tarvo::desktop
