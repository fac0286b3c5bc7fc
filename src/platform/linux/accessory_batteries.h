#pragma once

#include "platform/bluetooth.h"
#include "platform/linux/root.h"

#include <vector>

namespace tarvo::linux_platform {

/// The batteries of accessories that the kernel's input drivers know by their address. May wait for the
/// accessory: not on the main thread.
std::vector<AccessoryPower> readAccessoryBatteries(const Root& root);

/// "hid-00:11:22:33:44:55-battery" gives the address in upper case; absent for any other name.
std::optional<std::string> accessoryAddress(std::string_view supplyName);

} // namespace tarvo::linux_platform
