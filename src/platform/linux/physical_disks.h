#pragma once

#include "platform/linux/diskstats.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/root.h"
#include "platform/property_dictionary.h"

#include <optional>
#include <set>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Whether a block device is a whole disk of its own: no partition, no layer over other disks, no device in
/// memory and none of the several paths to one disk.
bool isPhysicalDisk(const Root& root, const std::string& name);

/// Byte counters of the physical disks as services with "Statistics". Which devices are disks is found out
/// anew when the devices change. For one thread.
class PhysicalDisks {
public:
    explicit PhysicalDisks(const Root& root);

    /// Absent when the counters cannot be read.
    std::optional<std::vector<PropertyDictionary>> services();

private:
    void findPhysical(const std::vector<DiskCounters>& disks);

    Root root_;
    KeptFile diskstats_;
    std::vector<std::string> known_; ///< names and numbers of all devices
    std::set<std::string> physical_; ///< names
};

} // namespace tarvo::linux_platform
