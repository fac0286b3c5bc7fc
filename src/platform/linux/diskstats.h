#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Byte counters of one block device, a whole disk or a part of one.
struct DiskCounters {
    std::string name;   ///< as /dev names it; '/' is written '!' under /sys
    std::string number; ///< "major:minor"
    std::uint64_t bytesRead = 0;
    std::uint64_t bytesWritten = 0;
    bool operator==(const DiskCounters&) const = default;
};

/// The lines of /proc/diskstats, in its order; lines without both counters are left out. A sector is 512
/// bytes here, whatever the disk's. Format: the kernel's admin-guide document on I/O statistics.
std::vector<DiskCounters> parseDiskstats(std::string_view text);

} // namespace tarvo::linux_platform
