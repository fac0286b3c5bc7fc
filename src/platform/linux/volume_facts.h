#pragma once

#include "platform/linux/root.h"

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// Bytes; `available` is what an ordinary user may still write.
struct FileSystemSize {
    std::uint64_t available = 0;
    std::uint64_t total = 0;
    bool operator==(const FileSystemSize&) const = default;
};

/// Size of the file system at a path; absent when it cannot be asked or has no blocks. May wait on a disk or
/// a server.
using MeasureFileSystem = std::function<std::optional<FileSystemSize>(const std::string& path)>;
std::optional<FileSystemSize> measureFileSystem(const std::string& path);

/// Label of the file system mounted at a path, asked of the file system itself; absent where it has none.
using FileSystemLabel = std::function<std::optional<std::string>(const std::string& path)>;
std::optional<std::string> fileSystemLabel(const std::string& path);

/// Text in which udev wrote bytes as "\x20".
std::string decodeUdevText(std::string_view text);

/// Labels by the path of the device, from the links in /dev/disk/by-label.
std::map<std::string, std::string> labelsByDevice(const Root& root);

/// Whether the disk of a device such as "/dev/sda1" can be taken out or hangs on USB; absent when unknown.
std::optional<bool> isRemovableDevice(const Root& root, const std::string& device);

} // namespace tarvo::linux_platform
