#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Counters of one process at one moment.
struct ScannedProcess {
    std::int32_t pid = 0;
    std::uint32_t nameOffset = 0; ///< into ProcessScan::names
    std::uint8_t nameLength = 0;
    bool isKernelThread = false;
    std::uint64_t startTime = 0; ///< clock ticks after boot
    std::uint64_t ticks = 0;     ///< clock ticks that its threads have used
    std::uint64_t residentPages = 0;
};

/// All processes at one moment, zombies apart. Used again and again, so that a pass takes no memory of its
/// own.
struct ProcessScan {
    SteadyTime takenAt{};                  ///< when the pass began
    std::uint64_t physicalBytes = 0;       ///< 0 when unknown
    std::vector<ScannedProcess> processes; ///< ascending pid
    std::vector<char> names;

    std::string_view nameOf(const ScannedProcess& process) const {
        return {names.data() + process.nameOffset, process.nameLength};
    }
    /// Null when the pid is not among them.
    const ScannedProcess* find(std::int32_t pid) const;
};

} // namespace tarvo::linux_platform
