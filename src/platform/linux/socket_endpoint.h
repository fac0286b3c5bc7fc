#pragma once

#include "platform/linux/socket_record.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// "host:port", numeric: "*" for the address of any host and for port 0, IPv6 hosts in brackets, IPv4 hosts
/// that are mapped into IPv6 as plain IPv4.
std::string endpointText(SocketFamily family, const SocketAddress& address);

/// Name of a TCP state by the kernel's number (enum in linux/tcp_states.h); absent for an unknown one.
std::optional<std::string_view> socketStateName(std::uint8_t state);

} // namespace tarvo::linux_platform
