#pragma once

#include "platform/network_interfaces.h"

#include <optional>
#include <string>

namespace tarvo {

/// Name of the joined Wi-Fi network, which some platforms give away only with the user's location permission.
class WiFiInfo {
public:
    explicit WiFiInfo(WiFiClient& client) : client_(client) {}

    /// Absent without permission, without an adapter and without a network. Not on the main thread.
    std::optional<std::string> currentSSID() const;
    /// Asks the user for the permission, where the platform has one.
    void requestPermission() { client_.requestWhenInUseAuthorization(); }

private:
    WiFiClient& client_;
};

} // namespace tarvo
