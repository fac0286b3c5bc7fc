#pragma once

#include "platform/network_interfaces.h"

namespace tarvo::macos_platform {

/// Interfaces as getifaddrs(3) lists them; byte counters have 32 bits.
class MacNetworkInterfaces : public NetworkInterfaces {
public:
    bool links(std::vector<LinkEntry>& entries) override;
    std::optional<std::vector<IPv4Entry>> addresses() override;
};

} // namespace tarvo::macos_platform
