#pragma once

#include "bluetooth.h"
#include "platform/desktop/system_bus.h"
#include "platform/dispatcher.h"

#include <string>

namespace tarvo {

/// The bus on which BlueZ stands. A recorded machine has none.
desktop::ConnectBus bluetoothBus(const std::string& root);

/// Bluetooth of the system bus's BlueZ; without it there are no devices. `root` is the folder of a recorded
/// machine, empty for this one. The dispatcher outlives the sources.
BluetoothSources bluezSources(const desktop::ConnectBus& connect, const std::string& root,
                              Dispatcher& dispatcher);

} // namespace tarvo
