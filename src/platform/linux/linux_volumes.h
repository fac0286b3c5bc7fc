#pragma once

#include "platform/clock.h"
#include "platform/linux/mountinfo.h"
#include "platform/linux/network_mount_probe.h"
#include "platform/linux/root.h"
#include "platform/linux/volume_facts.h"
#include "platform/volumes.h"

#include <chrono>
#include <functional>
#include <mutex>

namespace tarvo::linux_platform {

struct VolumeSources {
    MeasureFileSystem measure = measureFileSystem;
    FileSystemLabel label = fileSystemLabel; ///< not asked on a recorded machine
    std::function<DeviceHint(const std::string& device)> hint = [](const std::string&) {
        return DeviceHint{};
    };
    std::chrono::milliseconds networkLimit = std::chrono::seconds{2};
};

/// Mounted volumes from /proc/self/mountinfo, with sizes from the file systems and names from udev, the file
/// systems or a disk service. mounted() may be called from any thread but the main one.
class LinuxVolumes : public Volumes {
public:
    LinuxVolumes(const Root& root, Clock& clock, VolumeSources sources = {});

    std::optional<VolumeValues> root() override;
    std::optional<std::vector<VolumeValues>> mounted() override;

private:
    std::optional<std::vector<Mount>> mounts() const;
    std::vector<Mount> shownMounts(const std::vector<Mount>& all) const;
    std::vector<std::optional<FileSystemSize>> measureAll(const std::vector<Mount>& shown,
                                                          const std::string& rootPath);
    VolumeValues values(const Mount& mount, const std::optional<FileSystemSize>& size,
                        const std::map<std::string, std::string>& labels) const;
    std::optional<std::string> name(const Mount& mount, const DeviceHint& hint,
                                    const std::map<std::string, std::string>& labels) const;

    Root root_;
    VolumeSources sources_;
    std::mutex listing_;
    NetworkMountProbe networkMounts_;
};

} // namespace tarvo::linux_platform
