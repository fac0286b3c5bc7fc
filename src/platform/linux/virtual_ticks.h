#pragma once

#include "platform/host_statistics.h"
#include "platform/linux/proc_stat.h"

#include <array>
#include <cstdint>
#include <vector>

namespace tarvo::linux_platform {

/// Turns the kernel's 64-bit counters, which pass 2^31 after 248 days of uptime and may step back, into
/// counters of 31 bits that start at 0 with the first call and only grow until they wrap. Two of them always
/// have a difference of 32 bits. One instance a consumer: its counters belong together.
class VirtualTicks {
public:
    /// Replaces the list by one entry a raw core, in the same order. A core that is new at its position, by
    /// its id, and a counter that stepped back do not advance.
    void advance(const std::vector<RawCoreTicks>& raw, std::vector<CoreTicks>& cores);

private:
    struct Position {
        RawCoreTicks raw;
        std::array<std::uint32_t, 4> virtualTicks{}; ///< user, system, idle, nice
    };

    static void step(Position& position, const RawCoreTicks& now);

    std::vector<Position> positions_;
};

} // namespace tarvo::linux_platform
