#pragma once

#include "platform/linux/cpu_cores.h"
#include "platform/linux/hwmon_chip.h"
#include "platform/linux/sensor_group.h"
#include "platform/linux/thermal_zone.h"
#include "platform/sensor_names.h"

#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Where one temperature of the key table is read.
struct TemperatureSource {
    SensorGroup group = SensorGroup::other;
    SensorName name;
    std::string folder;
    std::string attribute; ///< milli-degrees Celsius
    bool isGPU = false;    ///< of a graphics card, which may be asleep
    bool operator==(const TemperatureSource&) const = default;
};

/// The temperatures in key order: performance cores and efficiency cores by processor number, graphics cards,
/// then the others by chip. Faulty ones and a board's unconnected pins are left out.
std::vector<TemperatureSource> temperatureSources(const std::vector<HwmonChip>& chips,
                                                  const std::vector<ThermalZone>& zones,
                                                  const std::vector<CPUCore>& cores);

} // namespace tarvo::linux_platform
