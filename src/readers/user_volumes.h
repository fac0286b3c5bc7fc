#pragma once

#include "platform/volumes.h"

#include <string>
#include <vector>

namespace tarvo {

/// One mounted volume as the disk section lists it. Capacities in GB of 10^9 bytes.
struct DiskVolume {
    std::string name; ///< the volume's own, else the last component of its path
    std::string path;
    double freeGB = 0; ///< 0 when unknown
    double totalGB = 0;
    bool isRemovable = false;
    bool operator==(const DiskVolume&) const = default;
};

/// The volumes of a known size, "/" first, then by name in code-point order; empty when they cannot be
/// listed. May wait on a slow disk: not on the main thread.
std::vector<DiskVolume> listUserVolumes(Volumes& volumes);

} // namespace tarvo
