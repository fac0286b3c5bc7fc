#include "platform/linux/volume_rules.h"

#include <algorithm>
#include <array>
#include <optional>
#include <tuple>

namespace tarvo::linux_platform {

namespace {

template <std::size_t Count>
bool contains(const std::array<std::string_view, Count>& names, std::string_view name) {
    return std::find(names.begin(), names.end(), name) != names.end();
}

bool isAtOrBelow(std::string_view path, std::string_view folder) {
    return path.starts_with(folder) &&
           (path.size() == folder.size() || path[folder.size()] == '/' || folder == "/");
}

bool isOnDisk(const Mount& mount) {
    constexpr std::array<std::string_view, 2> pooledTypes{"zfs", "bcachefs"};
    return mount.source.starts_with("/dev/") || contains(pooledTypes, mount.type);
}

bool belongsToThePackageSystem(const Mount& mount) {
    constexpr std::array<std::string_view, 3> imageTypes{"squashfs", "erofs", "iso9660"};
    return contains(imageTypes, mount.type) &&
           (isAtOrBelow(mount.point, "/snap") || isAtOrBelow(mount.point, "/var/lib/snapd"));
}

bool isAtASystemPath(std::string_view point) {
    // Below /etc stand the single files that containers are given.
    constexpr std::array<std::string_view, 13> folders{"/boot",
                                                       "/efi",
                                                       "/etc",
                                                       "/proc",
                                                       "/sys",
                                                       "/dev",
                                                       "/run",
                                                       "/ostree",
                                                       "/sysroot",
                                                       "/nix/store",
                                                       "/var/lib/docker",
                                                       "/var/lib/containers",
                                                       "/var/lib/flatpak"};
    if (point.starts_with("/run/media/")) return false;
    if (point.find("/.") != std::string_view::npos) return true;
    return std::any_of(folders.begin(), folders.end(),
                       [point](std::string_view folder) { return isAtOrBelow(point, folder); });
}

bool isShown(const Mount& mount, const MountHints& hints) {
    if (mount.point == "/") return true;
    if (!isOnDisk(mount) && !isNetworkFileSystem(mount.type)) return false;
    if (hints.hidden.contains(mount.point)) return false;
    if (hints.shown.contains(mount.point)) return true;
    return !belongsToThePackageSystem(mount) && !isAtASystemPath(mount.point);
}

// The mount that answers for a path: the deepest one above it, the later of two at one point.
const Mount* mountOf(const std::vector<Mount>& mounts, std::string_view path) {
    const Mount* deepest = nullptr;
    for (const auto& mount : mounts) {
        if (!isAtOrBelow(path, mount.point)) continue;
        if (deepest == nullptr || mount.point.size() >= deepest->point.size()) deepest = &mount;
    }
    return deepest;
}

bool isReachable(const std::vector<Mount>& mounts, const Mount& mount) {
    return mountOf(mounts, mount.point) == &mount;
}

bool isReadOnly(const Mount& mount) {
    return hasMountOption(mount.options, "ro") || hasMountOption(mount.superOptions, "ro");
}

bool isAnImage(const Mount& mount) {
    constexpr std::array<std::string_view, 6> types{"overlay",   "erofs", "squashfs",
                                                    "composefs", "tmpfs", "ramfs"};
    return contains(types, mount.type) || isReadOnly(mount);
}

// Which of several mounts of one file system stands for it: the smaller.
auto rank(const Mount& mount) {
    return std::tuple(mount.point != "/", mount.root != "/", mount.point.size());
}

} // namespace

bool isNetworkFileSystem(std::string_view type) {
    constexpr std::array<std::string_view, 6> types{"nfs",  "nfs4",       "cifs",
                                                    "smb3", "fuse.sshfs", "fuse.rclone"};
    return contains(types, type);
}

std::vector<Mount> userVolumes(const std::vector<Mount>& mounts, const MountHints& hints) {
    const auto sourceOfRoot = rootSpace(mounts).source;
    const auto source = [&sourceOfRoot](const Mount& mount) {
        return mount.point == "/" ? sourceOfRoot : mount.source;
    };
    std::vector<Mount> volumes;
    for (const auto& mount : mounts) {
        if (!isShown(mount, hints) || !isReachable(mounts, mount)) continue;
        const auto same = std::find_if(volumes.begin(), volumes.end(),
                                       [&](const Mount& volume) { return source(volume) == source(mount); });
        if (same == volumes.end()) {
            volumes.push_back(mount);
        } else if (rank(mount) < rank(*same)) {
            *same = mount;
        }
    }
    return volumes;
}

RootSpace rootSpace(const std::vector<Mount>& mounts) {
    const auto* const root = mountOf(mounts, "/");
    if (root == nullptr) return {};
    if (isAnImage(*root)) {
        for (const auto* const path : {"/var", "/home"}) {
            const auto* const mount = mountOf(mounts, path);
            if (mount == root || mount == nullptr || !isOnDisk(*mount) || isReadOnly(*mount)) continue;
            return {path, mount->source};
        }
    }
    return {"/", root->source};
}

} // namespace tarvo::linux_platform
