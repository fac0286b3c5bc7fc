#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::fakes {

/// One entry of the list of interfaces.
struct Interface {
    enum class Family { link, ipv4, ipv6, noAddress };
    struct Counters {
        std::uint32_t received = 0;
        std::uint32_t sent = 0;
    };

    std::string name;
    Family family = Family::link;
    bool isUp = true;
    bool isLoopback = false;
    std::string address{};              ///< of an ipv4 entry
    std::optional<Counters> counters{}; ///< of a link entry
};

struct Interfaces {
    bool listFails = false;
    bool namesFail = false;
    std::vector<Interface> entries;
};

Interfaces& interfaces();

} // namespace tarvo::fakes
