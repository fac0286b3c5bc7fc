#pragma once

#include "platform/bluetooth.h"

#include <QDBusConnection>

#include <functional>

namespace tarvo::desktop {

/// Makes or finds the connection to the bus on which BlueZ lives. May wait: not on the main thread.
using ConnectBus = std::function<QDBusConnection()>;

/// The paired devices as BlueZ knows them at the moment; no list without BlueZ.
class BluezPairedDevices : public PairedBluetoothDevices {
public:
    explicit BluezPairedDevices(ConnectBus connect) : connect_(std::move(connect)) {}

    std::optional<std::vector<PairedBluetoothDevice>> pairedDevices() override;

private:
    ConnectBus connect_;
};

} // namespace tarvo::desktop
