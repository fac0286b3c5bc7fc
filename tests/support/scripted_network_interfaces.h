#pragma once

#include "platform/network_interfaces.h"

namespace tarvo {

/// Interfaces as the test wrote them down.
class ScriptedNetworkInterfaces : public NetworkInterfaces {
public:
    bool links(std::vector<LinkEntry>& entries) override {
        if (linksFail) return false;
        entries = linkAnswer;
        return true;
    }
    std::optional<std::vector<IPv4Entry>> addresses() override { return addressAnswer; }

    std::vector<LinkEntry> linkAnswer;
    bool linksFail = false;
    std::optional<std::vector<IPv4Entry>> addressAnswer;
};

} // namespace tarvo
