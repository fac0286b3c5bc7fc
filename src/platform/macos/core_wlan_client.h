#pragma once

#include "platform/network_interfaces.h"

#include <memory>

namespace tarvo::macos_platform {

/// The network of the default Wi-Fi interface, which the system names only to applications that the user lets
/// know the location. Made and destroyed on the main thread.
class CoreWLANClient : public WiFiClient {
public:
    CoreWLANClient();
    ~CoreWLANClient() override;

    int authorizationStatus() override;
    void requestWhenInUseAuthorization() override;
    std::optional<std::string> ssid() override;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace tarvo::macos_platform
