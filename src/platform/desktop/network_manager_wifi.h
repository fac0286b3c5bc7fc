#pragma once

#include "platform/desktop/system_bus.h"
#include "platform/network_interfaces.h"

#include <chrono>
#include <memory>

namespace tarvo::desktop {

/// Name of the joined network as NetworkManager knows it, of several adapters that of the primary connection.
/// Another client answers where NetworkManager does not run, does not answer or leaves the adapters to
/// others; no service is started. Interface: NetworkManager's D-Bus reference. Waits for the bus: not on the
/// main thread.
class NetworkManagerWiFi : public WiFiClient {
public:
    /// No call on the bus is waited for longer than `patience`, and none is made after one had no answer.
    NetworkManagerWiFi(ConnectBus connect, std::unique_ptr<WiFiClient> otherwise,
                       std::chrono::milliseconds patience = std::chrono::seconds{2});

    /// Linux asks for no permission.
    int authorizationStatus() override { return authorizedAlways; }
    void requestWhenInUseAuthorization() override {}
    std::optional<std::string> ssid() override;

private:
    ConnectBus connect_;
    std::unique_ptr<WiFiClient> otherwise_;
    std::chrono::milliseconds patience_;
};

} // namespace tarvo::desktop
