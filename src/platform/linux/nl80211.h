#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// One wireless interface as the kernel describes it.
struct WirelessInterface {
    std::string name;
    bool isStation = false;          ///< joins networks of others
    std::optional<std::string> ssid; ///< bytes of the network's name, as they are
    bool operator==(const WirelessInterface&) const = default;
};

/// The number of a family in a reply to the request for it by name; absent in any other message. Payload of
/// one message. Format: the kernel's userspace-api document on generic netlink.
std::optional<std::uint16_t> parseFamilyNumber(std::string_view payload);

/// An interface in a reply to NL80211_CMD_GET_INTERFACE; absent when it has no name. Payload of one message.
/// Format: linux/nl80211.h.
std::optional<WirelessInterface> parseWirelessInterface(std::string_view payload);

/// Name of the network that the machine has joined: that of the preferred interface, else the first that has
/// one. A hidden name and one that is not UTF-8 are none.
std::optional<std::string> joinedNetwork(const std::vector<WirelessInterface>& interfaces,
                                         const std::vector<std::string>& preferredInterfaces);

} // namespace tarvo::linux_platform
