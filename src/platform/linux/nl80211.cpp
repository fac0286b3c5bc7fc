#include "platform/linux/nl80211.h"

#include "platform/linux/netlink_message.h"
#include "platform/utf8.h"

#include <linux/genetlink.h>
#include <linux/nl80211.h>

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

std::optional<std::string_view> attribute(std::string_view payload, std::uint16_t type) {
    if (payload.size() < sizeof(genlmsghdr)) return std::nullopt;
    return netlinkAttribute(payload.substr(sizeof(genlmsghdr)), type);
}

std::string textBeforeZero(std::string_view bytes) {
    return std::string(bytes.substr(0, bytes.find('\0')));
}

bool hasJoined(const WirelessInterface& interface) {
    return interface.isStation && interface.ssid && !interface.ssid->empty() && isUTF8(*interface.ssid);
}

} // namespace

std::optional<std::uint16_t> parseFamilyNumber(std::string_view payload) {
    return netlinkValue<std::uint16_t>(attribute(payload, CTRL_ATTR_FAMILY_ID));
}

std::optional<WirelessInterface> parseWirelessInterface(std::string_view payload) {
    const auto name = attribute(payload, NL80211_ATTR_IFNAME);
    if (!name) return std::nullopt;
    WirelessInterface interface;
    interface.name = textBeforeZero(*name);
    const auto type = netlinkValue<std::uint32_t>(attribute(payload, NL80211_ATTR_IFTYPE));
    interface.isStation = type == std::uint32_t{NL80211_IFTYPE_STATION};
    if (const auto ssid = attribute(payload, NL80211_ATTR_SSID)) interface.ssid = *ssid;
    return interface;
}

std::optional<std::string> joinedNetwork(const std::vector<WirelessInterface>& interfaces,
                                         const std::vector<std::string>& preferredInterfaces) {
    for (const auto& preferred : preferredInterfaces) {
        for (const auto& interface : interfaces) {
            if (interface.name == preferred && hasJoined(interface)) return interface.ssid;
        }
    }
    const auto first = std::find_if(interfaces.begin(), interfaces.end(), hasJoined);
    return first == interfaces.end() ? std::nullopt : first->ssid;
}

} // namespace tarvo::linux_platform
