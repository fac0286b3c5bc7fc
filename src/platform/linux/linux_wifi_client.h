#pragma once

#include "platform/linux/nl80211.h"
#include "platform/linux/root.h"
#include "platform/network_interfaces.h"

#include <functional>

namespace tarvo::linux_platform {

/// The machine's wireless interfaces; empty without any.
using WirelessInterfaceList = std::function<std::vector<WirelessInterface>()>;

/// Asks the kernel's wireless configuration, which needs no permission. Waits at most two seconds.
std::vector<WirelessInterface> systemWirelessInterfaces();

/// Name of the joined network as the kernel knows it. A recorded machine has none unless a list is given.
class LinuxWiFiClient : public WiFiClient {
public:
    explicit LinuxWiFiClient(const Root& root);
    LinuxWiFiClient(const Root& root, WirelessInterfaceList interfaces);

    /// Linux asks for no permission.
    int authorizationStatus() override { return authorizedAlways; }
    void requestWhenInUseAuthorization() override {}
    std::optional<std::string> ssid() override;

private:
    Root root_;
    WirelessInterfaceList interfaces_;
};

} // namespace tarvo::linux_platform
