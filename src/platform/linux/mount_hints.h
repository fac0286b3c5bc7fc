#pragma once

#include <set>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// Mount points that the machine's owner wants hidden from or shown to its users.
struct MountHints {
    std::set<std::string, std::less<>> hidden;
    std::set<std::string, std::less<>> shown;
    bool operator==(const MountHints&) const = default;
};

/// Adds the x-gvfs-hide and x-gvfs-show options of /etc/fstab. Format: fstab(5).
void addFstabHints(std::string_view text, MountHints& hints);

/// Adds those of /run/mount/utab, where mount keeps the options that the kernel does not know: lines of
/// KEY=VALUE.
void addUtabHints(std::string_view text, MountHints& hints);

} // namespace tarvo::linux_platform
