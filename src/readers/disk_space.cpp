#include "readers/disk_space.h"

namespace tarvo {

std::optional<DiskSpace> diskSpace(Volumes& volumes) {
    const auto root = volumes.root();
    if (!root || !root->availableForImportantUsage || !root->totalCapacity) return std::nullopt;
    return DiskSpace{static_cast<double>(*root->availableForImportantUsage) / 1e9,
                     static_cast<double>(*root->totalCapacity) / 1e9};
}

} // namespace tarvo
