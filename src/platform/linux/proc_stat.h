#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Raw counters of one core that is online, in the kernel's ticks since boot.
struct RawCoreTicks {
    std::uint32_t cpuId = 0;
    std::uint64_t user = 0;
    std::uint64_t system = 0; ///< with interrupts and what the host took away
    std::uint64_t idle = 0;   ///< with waiting for disks
    std::uint64_t nice = 0;
    bool operator==(const RawCoreTicks&) const = default;
};

/// Replaces the list by the "cpuN" lines at the beginning of /proc/stat, in their order; lines with fewer
/// than four numbers are left out, missing later columns are 0. True when the text holds all of these lines:
/// another line or nothing follows the last one, which a line feed ends. Format: proc(5).
bool parseCoreTicks(std::string_view text, std::vector<RawCoreTicks>& cores);

} // namespace tarvo::linux_platform
