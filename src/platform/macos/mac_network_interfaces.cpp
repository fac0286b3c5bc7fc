#include "platform/macos/mac_network_interfaces.h"

#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <array>
#include <type_traits>

namespace tarvo::macos_platform {
namespace {

static_assert(std::is_same_v<decltype(if_data::ifi_ibytes), std::uint32_t> &&
              std::is_same_v<decltype(if_data::ifi_obytes), std::uint32_t>);

class InterfaceList {
public:
    InterfaceList() : complete_(getifaddrs(&first_) == 0) {}
    ~InterfaceList() {
        if (complete_) freeifaddrs(first_);
    }
    InterfaceList(const InterfaceList&) = delete;
    InterfaceList& operator=(const InterfaceList&) = delete;

    explicit operator bool() const { return complete_; }
    const ifaddrs* first() const { return first_; }

private:
    ifaddrs* first_ = nullptr;
    bool complete_;
};

bool isUp(const ifaddrs& entry) {
    return (entry.ifa_flags & IFF_UP) != 0;
}

bool isLoopback(const ifaddrs& entry) {
    return (entry.ifa_flags & IFF_LOOPBACK) != 0;
}

bool hasFamily(const ifaddrs& entry, int family) {
    return entry.ifa_addr && entry.ifa_addr->sa_family == family;
}

std::optional<LinkStatistics> statisticsOf(const ifaddrs& entry) {
    const auto* const data = static_cast<const if_data*>(entry.ifa_data);
    return data ? std::optional(LinkStatistics{data->ifi_ibytes, data->ifi_obytes}) : std::nullopt;
}

/// Absent when the address cannot be written down.
std::optional<std::string> numericText(const sockaddr* address) {
    std::array<char, NI_MAXHOST> host{};
    if (getnameinfo(address, sizeof(sockaddr_in), host.data(), host.size(), nullptr, 0, NI_NUMERICHOST) != 0)
        return std::nullopt;
    return std::string(host.data());
}

static_assert(NI_MAXHOST == 1025);

} // namespace

bool MacNetworkInterfaces::links(std::vector<LinkEntry>& entries) {
    const InterfaceList list;
    if (!list) return false;
    entries.clear();
    for (const auto* entry = list.first(); entry; entry = entry->ifa_next) {
        if (hasFamily(*entry, AF_LINK))
            entries.push_back({true, isUp(*entry), isLoopback(*entry), statisticsOf(*entry)});
    }
    return true;
}

std::optional<std::vector<IPv4Entry>> MacNetworkInterfaces::addresses() {
    const InterfaceList list;
    if (!list) return std::nullopt;
    std::vector<IPv4Entry> entries;
    for (const auto* entry = list.first(); entry; entry = entry->ifa_next) {
        if (!hasFamily(*entry, AF_INET)) continue;
        if (auto text = numericText(entry->ifa_addr))
            entries.push_back({entry->ifa_name, isUp(*entry), isLoopback(*entry), std::move(*text)});
    }
    return entries;
}

} // namespace tarvo::macos_platform
