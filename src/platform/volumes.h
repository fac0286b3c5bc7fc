#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// Resource values of one mounted volume; what the platform does not say is absent.
struct VolumeValues {
    std::string path; ///< mount path
    std::optional<std::string> name;
    std::optional<std::uint64_t> availableForImportantUsage; ///< bytes
    std::optional<std::uint64_t> totalCapacity;              ///< bytes
    std::optional<bool> isRemovable;
    std::optional<bool> isInternal;
};

/// What a disk service of the desktop knows of a device such as "/dev/sda1".
struct DeviceHint {
    std::optional<std::string> label;
    std::optional<bool> isRemovable;
    bool isHidden = false;
    bool operator==(const DeviceHint&) const = default;
};

class Volumes {
public:
    virtual ~Volumes() = default;
    /// The volume of "/"; absent when the query fails. Returns at once.
    virtual std::optional<VolumeValues> root() = 0;
    /// Mounted volumes without the hidden ones, in the platform's order. May wait on a slow disk: not on the
    /// main thread. Absent when the platform returns no list.
    virtual std::optional<std::vector<VolumeValues>> mounted() = 0;
};

} // namespace tarvo
