#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace tarvo::linux_platform {

/// The lines of /proc/meminfo that are used, in the file's unit of 1024 bytes; a line that is missing or
/// unreadable is absent where that matters, else 0. Format: proc(5) and the kernel's filesystems/proc
/// document.
struct MemInfo {
    std::optional<std::uint64_t> total;
    std::optional<std::uint64_t> available;
    std::uint64_t free = 0;
    std::uint64_t buffers = 0;
    std::uint64_t cached = 0;
    std::uint64_t shmem = 0;
    std::uint64_t slabReclaimable = 0;
    std::uint64_t slabUnreclaimable = 0;
    std::uint64_t kernelStack = 0;
    std::uint64_t pageTables = 0;
    std::uint64_t secondaryPageTables = 0;
    std::uint64_t perCPU = 0;
    std::uint64_t unevictable = 0;
    std::uint64_t hugePages = 0;
    std::uint64_t zswap = 0;
    std::uint64_t swapTotal = 0;
    std::uint64_t swapFree = 0;
    bool operator==(const MemInfo&) const = default;
};

MemInfo parseMemInfo(std::string_view text);

} // namespace tarvo::linux_platform
