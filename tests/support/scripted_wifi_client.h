#pragma once

#include "platform/network_interfaces.h"

namespace tarvo {

/// A Wi-Fi adapter and a permission as the test wrote them down.
class ScriptedWiFiClient : public WiFiClient {
public:
    int authorizationStatus() override { return status; }
    void requestWhenInUseAuthorization() override { ++requests; }
    std::optional<std::string> ssid() override { return name; }

    int status = authorizedAlways;
    int requests = 0;
    std::optional<std::string> name;
};

} // namespace tarvo
