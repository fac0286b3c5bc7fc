#pragma once

#include "platform/linux/hwmon_chip.h"
#include "platform/sensor_names.h"

#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Where one fan's speed is read.
struct FanSource {
    SensorName name;
    std::string folder;
    std::string attribute; ///< revolutions per minute
    bool isGPU = false;    ///< of a graphics card, which may be asleep
    bool operator==(const FanSource&) const = default;
};

/// The fans by chip, those of graphics cards last. Faulty ones and a board's headers to which nothing is
/// connected are left out; any other fan at rest counts.
std::vector<FanSource> fanSources(const std::vector<HwmonChip>& chips);

} // namespace tarvo::linux_platform
