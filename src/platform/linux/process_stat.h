#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarvo::linux_platform {

/// What is wanted of a process's stat file; the other fields are passed over.
struct ProcessStat {
    std::string_view name; ///< at most 63 bytes of any kind; points into the parsed text
    char state = '?';
    bool isKernelThread = false;
    std::uint64_t ticks = 0; ///< clock ticks in user and kernel mode, of all threads, ended ones included
    std::uint64_t threads = 0;
    std::uint64_t startTime = 0; ///< clock ticks after boot; with the pid the identity of the process
    std::uint64_t residentPages = 0;
    bool operator==(const ProcessStat&) const = default;

    /// Ended and waiting to be reaped. A first thread that ended before the others is no zombie.
    bool isZombie() const { return (state == 'Z' || state == 'X' || state == 'x') && threads <= 1; }
};

/// The content of /proc/PID/stat (proc(5)). Absent when a wanted field is missing or no number; more fields
/// than known today do not matter.
std::optional<ProcessStat> parseProcessStat(std::string_view text);

} // namespace tarvo::linux_platform
