#pragma once

#include "platform/linux/mount_hints.h"
#include "platform/linux/mountinfo.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Whether reaching the file system can wait on another machine.
bool isNetworkFileSystem(std::string_view type);

/// The mounts that a user takes for volumes: file systems on disks and on the network without those of the
/// system, of containers and of packages, one for each file system; "/" always. In the order they were made.
std::vector<Mount> userVolumes(const std::vector<Mount>& mounts, const MountHints& hints);

/// The path at which the space of "/" is measured, and the source that this space belongs to. Where "/" is an
/// image or in memory, as on systems that are replaced as a whole, that is the disk for what changes.
struct RootSpace {
    std::string path = "/";
    std::string source;
};
RootSpace rootSpace(const std::vector<Mount>& mounts);

} // namespace tarvo::linux_platform
