#include "platform/linux/linux_volumes.h"

#include "platform/linux/mount_hints.h"
#include "platform/linux/read_file.h"
#include "platform/linux/volume_rules.h"

#include <utility>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t longestMountTable = 8U << 20U;

void setSize(VolumeValues& values, const std::optional<FileSystemSize>& size) {
    if (!size) return;
    values.availableForImportantUsage = size->available;
    values.totalCapacity = size->total;
}

} // namespace

LinuxVolumes::LinuxVolumes(const Root& root, Clock& clock, VolumeSources sources)
    : root_(root), sources_(std::move(sources)),
      networkMounts_(clock, sources_.measure, sources_.networkLimit) {}

std::optional<VolumeValues> LinuxVolumes::root() {
    VolumeValues values;
    values.path = "/";
    const auto space = rootSpace(mounts().value_or(std::vector<Mount>{}));
    setSize(values, sources_.measure(root_.path(space.path)));
    if (!values.totalCapacity) return std::nullopt;
    return values;
}

std::optional<std::vector<VolumeValues>> LinuxVolumes::mounted() {
    const std::lock_guard lock(listing_);
    const auto all = mounts();
    if (!all) return std::nullopt;
    const auto shown = shownMounts(*all);
    const auto sizes = measureAll(shown, rootSpace(*all).path);
    const auto labels = labelsByDevice(root_);
    std::vector<VolumeValues> result;
    for (std::size_t index = 0; index < shown.size(); ++index) {
        if (sizes[index]) result.push_back(values(shown[index], sizes[index], labels));
    }
    return result;
}

std::optional<std::vector<Mount>> LinuxVolumes::mounts() const {
    const auto text = readFile(root_.path("/proc/self/mountinfo"), longestMountTable);
    if (!text) return std::nullopt;
    return parseMountInfo(*text);
}

std::vector<Mount> LinuxVolumes::shownMounts(const std::vector<Mount>& all) const {
    MountHints hints;
    addFstabHints(readFile(root_.path("/etc/fstab")).value_or(""), hints);
    addUtabHints(readFile(root_.path("/run/mount/utab")).value_or(""), hints);
    auto shown = userVolumes(all, hints);
    std::erase_if(shown, [this](const Mount& mount) {
        return mount.point != "/" && sources_.hint(mount.source).isHidden;
    });
    return shown;
}

// The local ones first: they answer at once, while a server may not.
std::vector<std::optional<FileSystemSize>> LinuxVolumes::measureAll(const std::vector<Mount>& shown,
                                                                    const std::string& rootPath) {
    std::vector<std::optional<FileSystemSize>> sizes(shown.size());
    std::vector<std::size_t> remote;
    std::vector<std::string> remotePaths;
    for (std::size_t index = 0; index < shown.size(); ++index) {
        const auto& mount = shown[index];
        const auto path = root_.path(mount.point == "/" ? rootPath : mount.point);
        if (isNetworkFileSystem(mount.type)) {
            remote.push_back(index);
            remotePaths.push_back(path);
        } else {
            sizes[index] = sources_.measure(path);
        }
    }
    const auto remoteSizes = networkMounts_.measure(remotePaths);
    for (std::size_t index = 0; index < remote.size(); ++index)
        sizes[remote[index]] = remoteSizes[index];
    return sizes;
}

VolumeValues LinuxVolumes::values(const Mount& mount, const std::optional<FileSystemSize>& size,
                                  const std::map<std::string, std::string>& labels) const {
    const auto hint = sources_.hint(mount.source);
    VolumeValues values;
    values.path = mount.point;
    setSize(values, size);
    values.name = name(mount, hint, labels);
    values.isRemovable = hint.isRemovable ? hint.isRemovable : isRemovableDevice(root_, mount.source);
    if (values.isRemovable) values.isInternal = !*values.isRemovable;
    return values;
}

std::optional<std::string> LinuxVolumes::name(const Mount& mount, const DeviceHint& hint,
                                              const std::map<std::string, std::string>& labels) const {
    if (hint.label && !hint.label->empty()) return hint.label;
    const auto device = root_.resolve(mount.source).value_or(mount.source);
    if (const auto label = labels.find(device); label != labels.end()) return label->second;
    if (!root_.isLive() || isNetworkFileSystem(mount.type)) return std::nullopt;
    return sources_.label(mount.point);
}

} // namespace tarvo::linux_platform
