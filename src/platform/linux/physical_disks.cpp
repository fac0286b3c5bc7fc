#include "platform/linux/physical_disks.h"

#include "platform/linux/folder.h"

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

std::vector<std::string> identities(const std::vector<DiskCounters>& disks) {
    std::vector<std::string> result;
    for (const auto& disk : disks)
        result.push_back(disk.name + ' ' + disk.number);
    return result;
}

PropertyDictionary service(const DiskCounters& disk) {
    PropertyDictionary statistics;
    statistics.set("Bytes (Read)", PropertyValue(disk.bytesRead));
    statistics.set("Bytes (Write)", PropertyValue(disk.bytesWritten));
    PropertyDictionary service;
    service.set("Statistics", std::move(statistics));
    return service;
}

} // namespace

bool isPhysicalDisk(const Root& root, const std::string& name) {
    auto fileName = name;
    std::replace(fileName.begin(), fileName.end(), '/', '!');
    const auto folder = root.path("/sys/block/" + fileName);
    return pathExists(folder + "/device") && readNumber<int>(folder + "/hidden") != 1 &&
           folderEntries(folder + "/slaves").empty();
}

PhysicalDisks::PhysicalDisks(const Root& root) : root_(root), diskstats_(root.path("/proc/diskstats")) {}

std::optional<std::vector<PropertyDictionary>> PhysicalDisks::services() {
    const auto text = diskstats_.read();
    if (!text) return std::nullopt;
    const auto disks = parseDiskstats(*text);
    if (auto now = identities(disks); now != known_) {
        findPhysical(disks);
        known_ = std::move(now);
    }

    std::vector<PropertyDictionary> result;
    std::uint64_t sum = 0;
    for (const auto& disk : disks) {
        if (!physical_.contains(disk.name)) continue;
        // Counters that cannot be true must not reach the readers' checked sums.
        if (__builtin_add_overflow(sum, std::max(disk.bytesRead, disk.bytesWritten), &sum)) break;
        result.push_back(service(disk));
    }
    return result;
}

void PhysicalDisks::findPhysical(const std::vector<DiskCounters>& disks) {
    physical_.clear();
    for (const auto& disk : disks) {
        if (isPhysicalDisk(root_, disk.name)) physical_.insert(disk.name);
    }
}

} // namespace tarvo::linux_platform
