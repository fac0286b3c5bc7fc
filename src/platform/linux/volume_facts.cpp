#include "platform/linux/volume_facts.h"

#include "platform/linux/folder.h"
#include "platform/linux/parse_number.h"
#include "platform/linux/read_file.h"
#include "platform/posix/file_descriptor.h"
#include "platform/utf8.h"

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/statvfs.h>

#include <array>

namespace tarvo::linux_platform {

namespace {

constexpr int deepestStack = 8;

std::optional<std::string> usableLabel(std::string label) {
    if (label.empty() || !isUTF8(label)) return std::nullopt;
    return label;
}

std::optional<bool> isRemovableBlock(const Root& root, const std::string& name, int depth) {
    const auto folder = root.resolve("/sys/class/block/" + name);
    if (!folder || depth == deepestStack) return std::nullopt;
    const auto below = folderEntries(root.path(*folder + "/slaves"));
    if (below.size() == 1) return isRemovableBlock(root, below.front(), depth + 1);
    const bool isPartition = pathExists(root.path(*folder + "/partition"));
    const auto disk = isPartition ? folder->substr(0, folder->rfind('/')) : *folder;
    return readNumber<int>(root.path(disk + "/removable")) == 1 || disk.find("/usb") != std::string::npos;
}

} // namespace

std::optional<FileSystemSize> measureFileSystem(const std::string& path) {
    struct statvfs status {};
    if (::statvfs(path.c_str(), &status) != 0 || status.f_blocks == 0) return std::nullopt;
    return FileSystemSize{status.f_bavail * status.f_frsize, status.f_blocks * status.f_frsize};
}

std::optional<std::string> fileSystemLabel(const std::string& path) {
    const FileDescriptor folder(::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK));
    std::array<char, FSLABEL_MAX + 1> label{};
    if (!folder || ::ioctl(folder.get(), FS_IOC_GETFSLABEL, label.data()) != 0) return std::nullopt;
    return usableLabel(label.data());
}

std::string decodeUdevText(std::string_view text) {
    constexpr std::size_t escapeLength = 4;
    std::string result;
    while (!text.empty()) {
        const bool isEscape = text.starts_with("\\x") && text.size() >= escapeLength;
        const auto byte = isEscape ? parseHexadecimal<unsigned char>(text.substr(2, 2)) : std::nullopt;
        result += byte ? static_cast<char>(*byte) : text.front();
        text.remove_prefix(byte ? escapeLength : 1);
    }
    return result;
}

std::map<std::string, std::string> labelsByDevice(const Root& root) {
    constexpr std::string_view folder = "/dev/disk/by-label/";
    std::map<std::string, std::string> labels;
    for (const auto& name : folderEntries(root.path(folder))) {
        const auto device = root.resolve(std::string(folder) + name);
        auto label = usableLabel(decodeUdevText(name));
        if (device && label) labels.emplace(*device, std::move(*label));
    }
    return labels;
}

std::optional<bool> isRemovableDevice(const Root& root, const std::string& device) {
    if (!device.starts_with("/dev/")) return std::nullopt;
    const auto resolved = root.resolve(device).value_or(device);
    return isRemovableBlock(root, std::string(lastComponent(resolved)), 0);
}

} // namespace tarvo::linux_platform
