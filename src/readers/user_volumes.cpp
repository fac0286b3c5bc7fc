#include "readers/user_volumes.h"

#include <algorithm>
#include <string_view>

namespace tarvo {

namespace {

std::string lastPathComponent(std::string_view path) {
    while (path.size() > 1 && path.back() == '/')
        path.remove_suffix(1);
    if (path == "/") return "/";
    return std::string(path.substr(path.rfind('/') + 1)); // npos + 1 is 0
}

DiskVolume described(const VolumeValues& values) {
    DiskVolume volume;
    volume.name = values.name ? *values.name : lastPathComponent(values.path);
    volume.path = values.path;
    volume.freeGB = static_cast<double>(values.availableForImportantUsage.value_or(0)) / 1e9;
    volume.totalGB = static_cast<double>(*values.totalCapacity) / 1e9;
    volume.isRemovable = values.isRemovable.value_or(false);
    return volume;
}

bool comesFirst(const DiskVolume& left, const DiskVolume& right) {
    const bool leftIsRoot = left.path == "/";
    const bool rightIsRoot = right.path == "/";
    if (leftIsRoot != rightIsRoot) return leftIsRoot;
    if (leftIsRoot) return false;
    return left.name < right.name; // the order of UTF-8 bytes is that of code points
}

} // namespace

std::vector<DiskVolume> listUserVolumes(Volumes& volumes) {
    std::vector<DiskVolume> result;
    const auto mounted = volumes.mounted();
    if (!mounted) return result;
    for (const auto& values : *mounted) {
        if (values.totalCapacity.value_or(0) >= 1) result.push_back(described(values));
    }
    std::stable_sort(result.begin(), result.end(), comesFirst);
    return result;
}

} // namespace tarvo
