#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// One mounted file system as /proc/self/mountinfo tells of it.
struct Mount {
    std::string root;    ///< what of the file system is mounted: "/" or a folder or subvolume of it
    std::string point;   ///< where
    std::string options; ///< of this mount, separated by commas
    std::string type;
    std::string source;       ///< "/dev/sda1", "server:/export", "tmpfs"
    std::string superOptions; ///< of the file system
    bool operator==(const Mount&) const = default;
};

/// The mounts, in the order they were made; lines that are cut are left out. Format: proc(5).
std::vector<Mount> parseMountInfo(std::string_view text);

/// The text with its octal escapes ("\040" for a blank) replaced, as mount tables write names.
std::string decodeMountText(std::string_view text);

/// Whether a list separated by commas holds the option.
bool hasMountOption(std::string_view options, std::string_view option);

} // namespace tarvo::linux_platform
