#pragma once

#include "platform/linux/root.h"

#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// A logical processor and the physical core it belongs to.
struct CPUCore {
    int cpu = 0;
    int package = 0;
    int core = 0; ///< unique within the package only
    bool isEfficient = false;
    bool operator==(const CPUCore&) const = default;
};

/// The logical processors by number; those without topology are left out. Efficient are the ones that the
/// kernel lists as such on hybrid processors, else those of clearly smaller capacity or maximum frequency; on
/// a machine of equal cores none is. Documentation/ABI/stable/sysfs-devices-system-cpu of the kernel.
std::vector<CPUCore> readCPUCores(const Root& root);

/// What tells big cores from small ones; higher is bigger.
struct CoreStrength {
    std::optional<double> capacity;
    std::optional<double> maximumFrequency;
};

/// For each core whether it is clearly weaker than the strongest: by capacity where all have one and it tells
/// cores apart, else by frequency where all have one.
std::vector<bool> weakCores(const std::vector<CoreStrength>& cores);

} // namespace tarvo::linux_platform
