#pragma once

#include "platform/linux/kept_file.h"
#include "platform/linux/root.h"

#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Memory that one compressed RAM disk holds, bytes: the third number of its mm_stat. Format: the kernel's
/// admin-guide document on zram.
std::optional<std::uint64_t> parseZramUsage(std::string_view text);

/// The compressed RAM disks of the machine. Their files stay open. For one thread.
class ZramDevices {
public:
    explicit ZramDevices(Root root) : root_(std::move(root)) {}

    /// Looks for disks that came or went.
    void list();
    /// Memory that all listed disks hold together, bytes; a disk that cannot be read counts 0.
    std::uint64_t usedBytes();

private:
    Root root_;
    std::vector<KeptFile> files_;
};

} // namespace tarvo::linux_platform
