#include "macos/fakes/interfaces.h"

#include "macos/fakes/ledger.h"

#include <arpa/inet.h>
#include <fmt/format.h>
#include <ifaddrs.h>
#include <net/if.h>
#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstring>
#include <memory>

namespace tarvo::fakes {
namespace {

/// Room for one entry and all that it points to.
struct Entry {
    ifaddrs link{}; ///< first: its address is that of the entry
    std::string name;
    sockaddr_storage address{};
    if_data data{};
};

sockaddr_storage addressOf(const Interface& interface) {
    sockaddr_storage storage{};
    if (interface.family == Interface::Family::ipv4) {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        ::inet_pton(AF_INET, interface.address.c_str(), &address.sin_addr);
        std::memcpy(&storage, &address, sizeof address);
    }
    storage.ss_family = interface.family == Interface::Family::link   ? AF_LINK
                        : interface.family == Interface::Family::ipv4 ? AF_INET
                                                                      : AF_INET6;
    return storage;
}

Entry* makeEntry(const Interface& interface) {
    auto* const entry = new Entry;
    entry->name = interface.name;
    entry->address = addressOf(interface);
    entry->link.ifa_name = entry->name.data();
    entry->link.ifa_flags = (interface.isUp ? 0x1U : 0U) | (interface.isLoopback ? 0x8U : 0U);
    if (interface.family != Interface::Family::noAddress)
        entry->link.ifa_addr = reinterpret_cast<sockaddr*>(&entry->address);
    if (interface.counters) {
        entry->data.ifi_ibytes = interface.counters->received;
        entry->data.ifi_obytes = interface.counters->sent;
        entry->link.ifa_data = &entry->data;
    }
    return entry;
}

} // namespace

Interfaces& interfaces() {
    static Interfaces instance;
    return instance;
}

} // namespace tarvo::fakes

using namespace tarvo::fakes;

extern "C" {

int getifaddrs(ifaddrs** list) noexcept {
    if (interfaces().listFails) return -1;
    *list = nullptr;
    for (auto entry = interfaces().entries.rbegin(); entry != interfaces().entries.rend(); ++entry) {
        auto* const made = makeEntry(*entry);
        made->link.ifa_next = *list;
        *list = &made->link;
    }
    ledger().taken("interface list");
    return 0;
}

void freeifaddrs(ifaddrs* list) noexcept {
    if (!expect(ledger().held.contains("interface list"), "freeifaddrs of what is not held")) return;
    ledger().givenBack("interface list");
    while (list) {
        const std::unique_ptr<Entry> entry(reinterpret_cast<Entry*>(list));
        list = list->ifa_next;
    }
}

int getnameinfo(const sockaddr* address, socklen_t addressLength, char* host, socklen_t hostLength,
                char* service, socklen_t serviceLength, int flags) {
    expect(addressLength == sizeof(sockaddr_in), fmt::format("an address of {} bytes", addressLength));
    expect(hostLength == 1025, fmt::format("room for {} characters of a host", hostLength));
    expect(!service && serviceLength == 0, "the name of a service");
    expect(flags == NI_NUMERICHOST, "a host that is not numeric");
    if (interfaces().namesFail || address->sa_family != AF_INET) return EAI_FAMILY;
    const auto* const ipv4 = reinterpret_cast<const sockaddr_in*>(address);
    return ::inet_ntop(AF_INET, &ipv4->sin_addr, host, hostLength) ? 0 : EAI_OVERFLOW;
}
}
