#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Byte counters of one interface since it was made.
struct InterfaceCounters {
    std::string_view name; ///< inside the parsed text
    std::uint64_t receivedBytes = 0;
    std::uint64_t sentBytes = 0;
    bool operator==(const InterfaceCounters&) const = default;
};

/// Replaces the list by the interfaces of /proc/net/dev, in its order; lines without both counters are left
/// out. Format: proc(5).
void parseNetDev(std::string_view text, std::vector<InterfaceCounters>& interfaces);

} // namespace tarvo::linux_platform
