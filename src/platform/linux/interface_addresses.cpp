#include "platform/linux/interface_addresses.h"

#include <fmt/format.h>

#include <ifaddrs.h>
#include <net/if.h>
#include <netinet/in.h>

#include <algorithm>
#include <memory>
#include <tuple>

namespace tarvo::linux_platform {

namespace {

constexpr std::uint64_t noRoute = UINT64_MAX;

struct FreeAddresses {
    void operator()(ifaddrs* list) const { ::freeifaddrs(list); }
};

bool isSelfAssigned(std::uint32_t address) {
    return address >> 16U == 0xA9FEU; // 169.254.0.0/16
}

std::string numericText(std::uint32_t address) {
    return fmt::format("{}.{}.{}.{}", address >> 24U, (address >> 16U) & 0xFFU, (address >> 8U) & 0xFFU,
                       address & 0xFFU);
}

// Metric of the interface's best default route.
std::uint64_t defaultMetric(const std::string& name, const std::vector<DefaultRoute>& routes) {
    std::uint64_t best = noRoute;
    for (const auto& route : routes) {
        if (route.interfaceName == name) best = std::min<std::uint64_t>(best, route.metric);
    }
    return best;
}

std::string shownName(const PlacedAddress& address) {
    const bool beginsWithEn = address.entry.name.starts_with("en");
    if (address.isPhysical) return beginsWithEn ? address.entry.name : "en:" + address.entry.name;
    return beginsWithEn ? "v:" + address.entry.name : address.entry.name;
}

IPv4Entry shown(const PlacedAddress& address) {
    return {.interfaceName = shownName(address),
            .isUp = (address.entry.flags & IFF_UP) != 0,
            .isLoopback = (address.entry.flags & IFF_LOOPBACK) != 0,
            .address = numericText(address.entry.address)};
}

} // namespace

std::optional<std::vector<InterfaceAddress>> systemAddresses() {
    ifaddrs* first = nullptr;
    if (::getifaddrs(&first) != 0) return std::nullopt;
    const std::unique_ptr<ifaddrs, FreeAddresses> list(first);
    std::vector<InterfaceAddress> result;
    for (const auto* entry = first; entry != nullptr; entry = entry->ifa_next) {
        if (entry->ifa_addr == nullptr || entry->ifa_addr->sa_family != AF_INET) continue;
        const auto* const address = reinterpret_cast<const sockaddr_in*>(entry->ifa_addr);
        result.push_back({entry->ifa_name, entry->ifa_flags, ntohl(address->sin_addr.s_addr)});
    }
    return result;
}

std::vector<IPv4Entry> orderedAddresses(std::vector<PlacedAddress> addresses,
                                        const std::vector<DefaultRoute>& routes) {
    for (auto& address : addresses)
        address.isPhysical = address.isPhysical && !isSelfAssigned(address.entry.address);

    // Of the others the last one is taken, so what is wanted least stands first; of the physical ones the
    // first.
    const auto place = [&routes](const PlacedAddress& address) {
        const auto metric = defaultMetric(address.entry.name, routes);
        if (address.isPhysical) return std::tuple(2, metric, address.index);
        if (isSelfAssigned(address.entry.address)) return std::tuple(0, noRoute - metric, 0U);
        return std::tuple(1, noRoute - metric, 0U);
    };
    std::stable_sort(addresses.begin(), addresses.end(),
                     [&place](const auto& left, const auto& right) { return place(left) < place(right); });

    std::vector<IPv4Entry> result;
    result.reserve(addresses.size());
    for (const auto& address : addresses)
        result.push_back(shown(address));
    return result;
}

} // namespace tarvo::linux_platform
