#pragma once

#include "platform/host_statistics.h"
#include "platform/linux/meminfo.h"

#include <cstdint>
#include <optional>

namespace tarvo::linux_platform {

/// Divides physical memory into the five kinds of pages, which always add up to all of it: active + wired +
/// compressor is total - available. `zramBytes` is the memory that compressed RAM disks hold. Absent when the
/// total is not known.
std::optional<PageStatistics> partitionPages(const MemInfo& info, std::uint64_t zramBytes,
                                             std::uint64_t pageSize);

/// Physical memory in bytes; 0 when not known.
std::uint64_t physicalBytes(const MemInfo& info);

/// Swap as its users see it: a compressed RAM disk counts with its uncompressed size.
SwapUsage swapUsage(const MemInfo& info);

} // namespace tarvo::linux_platform
