#include "readers/local_ip_address.h"

namespace tarvo {

std::optional<std::string> localIPAddress(NetworkInterfaces& interfaces) {
    const auto entries = interfaces.addresses();
    if (!entries) return std::nullopt;
    const IPv4Entry* candidate = nullptr;
    for (const auto& entry : *entries) {
        if (!entry.isUp || entry.isLoopback) continue;
        candidate = &entry;
        if (entry.interfaceName.starts_with("en")) break;
    }
    if (candidate == nullptr) return std::nullopt;
    return candidate->address;
}

} // namespace tarvo
