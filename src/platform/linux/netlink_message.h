#pragma once

#include <cstdint>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// One message of a netlink datagram; the payload is inside the datagram. Format: netlink(7).
struct NetlinkMessage {
    std::uint16_t type = 0;
    std::string_view payload;
};

/// The whole messages of a datagram, in order; what is cut at the end is left out.
std::vector<NetlinkMessage> netlinkMessages(std::string_view datagram);

/// Payload of the first attribute of a type; absent without one.
std::optional<std::string_view> netlinkAttribute(std::string_view attributes, std::uint16_t type);

/// A plain value that is the whole payload.
template <typename Value>
std::optional<Value> netlinkValue(std::optional<std::string_view> payload) {
    if (!payload || payload->size() != sizeof(Value)) return std::nullopt;
    Value value{};
    std::memcpy(&value, payload->data(), sizeof(Value));
    return value;
}

/// A request of the generic family. `attributes` are whole attributes.
std::string genericNetlinkRequest(std::uint16_t family, std::uint16_t flags, std::uint8_t command,
                                  std::string_view attributes);

/// One attribute, padded.
std::string netlinkAttributeBytes(std::uint16_t type, std::string_view payload);

} // namespace tarvo::linux_platform
