#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

struct LinkStatistics {
    std::uint64_t receivedBytes = 0;
    std::uint64_t sentBytes = 0;
};

/// The link-level entry of one interface.
struct LinkEntry {
    bool hasAddress = true;
    bool isUp = false;
    bool isLoopback = false;
    std::optional<LinkStatistics> statistics; ///< absent where the interface must not be counted
};

/// One IPv4 address of one interface.
struct IPv4Entry {
    std::string interfaceName; ///< or a class name with the same meaning for the choice of the local address
    bool isUp = false;
    bool isLoopback = false;
    std::string address; ///< numeric host text
};

/// Network interfaces of the machine. Main thread only.
class NetworkInterfaces {
public:
    virtual ~NetworkInterfaces() = default;
    /// Replaces the list by the link-level entries. False on failure.
    virtual bool links(std::vector<LinkEntry>& entries) = 0;
    /// IPv4 entries in the platform's order; absent on failure.
    virtual std::optional<std::vector<IPv4Entry>> addresses() = 0;
};

/// The joined Wi-Fi network. Asked off the main thread, for the permission on it.
class WiFiClient {
public:
    /// Location permission as the platform numbers it; 3 is "authorized always".
    static constexpr int authorizedAlways = 3;

    virtual ~WiFiClient() = default;
    virtual int authorizationStatus() = 0;
    virtual void requestWhenInUseAuthorization() = 0;
    /// Name of the default interface's network; absent when there is none.
    virtual std::optional<std::string> ssid() = 0;
};

} // namespace tarvo
