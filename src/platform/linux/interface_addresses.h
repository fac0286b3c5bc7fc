#pragma once

#include "platform/linux/net_route.h"
#include "platform/network_interfaces.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// One IPv4 address as the kernel lists it.
struct InterfaceAddress {
    std::string name;
    unsigned flags = 0;        ///< IFF_ bits
    std::uint32_t address = 0; ///< in the host's byte order
};

/// The kernel's list; absent when it cannot be had.
using AddressList = std::function<std::optional<std::vector<InterfaceAddress>>()>;
std::optional<std::vector<InterfaceAddress>> systemAddresses();

/// An address with what decides its place.
struct PlacedAddress {
    InterfaceAddress entry;
    unsigned index = 0;      ///< of the interface
    bool isPhysical = false; ///< reached through hardware
};

/// Entries whose names and order let the choice of the local address, which knows interfaces by the names of
/// another platform, come out right: addresses that are not physical first, under names that do not begin
/// with "en" and with the default route's last; then the physical ones, under names that do, with the default
/// route's first. An address that a machine gives itself (169.254) is not physical.
std::vector<IPv4Entry> orderedAddresses(std::vector<PlacedAddress> addresses,
                                        const std::vector<DefaultRoute>& routes);

} // namespace tarvo::linux_platform
