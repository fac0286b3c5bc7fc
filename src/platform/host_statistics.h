#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarvo {

/// Tick counters of one core, in units that cancel out. Not negative, unless the system itself counts in 32
/// bits and has gone past the sign.
struct CoreTicks {
    std::int32_t user = 0;
    std::int32_t system = 0;
    std::int32_t idle = 0;
    std::int32_t nice = 0;
    bool operator==(const CoreTicks&) const = default;
};

/// Page counts that partition physical memory.
struct PageStatistics {
    std::uint64_t active = 0;
    std::uint64_t wired = 0;
    std::uint64_t compressor = 0;
    std::uint64_t inactive = 0;
    std::uint64_t free = 0;
    std::uint64_t pageSize = 0; ///< bytes
    bool operator==(const PageStatistics&) const = default;
};

/// Bytes.
struct SwapUsage {
    std::uint64_t total = 0;
    std::uint64_t used = 0;
    bool operator==(const SwapUsage&) const = default;
};

struct MemoryStatistics {
    std::uint64_t physicalBytes = 0;     ///< 0 when unknown
    std::optional<PageStatistics> pages; ///< absent when the query failed
    std::optional<SwapUsage> swap;       ///< absent when the query failed
};

/// Processor, memory and load counters of the machine. Main thread only; every call is one quick kernel
/// query.
class HostStatistics {
public:
    virtual ~HostStatistics() = default;
    /// Replaces the list by one entry a core, in the kernel's order. False, and the list unspecified, on
    /// failure.
    virtual bool processorLoad(std::vector<CoreTicks>& cores) = 0;
    virtual MemoryStatistics memory() = 0;
    /// 1-, 5- and 15-minute load averages; absent on failure.
    virtual std::optional<std::array<double, 3>> loadAverages() = 0;
};

} // namespace tarvo
