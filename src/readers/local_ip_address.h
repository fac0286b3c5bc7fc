#pragma once

#include "platform/network_interfaces.h"

#include <optional>
#include <string>

namespace tarvo {

/// The machine's IPv4 address: the first of an interface whose name begins with "en", else the last of any
/// other one that is up and not loopback; absent without one. Main thread only.
std::optional<std::string> localIPAddress(NetworkInterfaces& interfaces);

} // namespace tarvo
