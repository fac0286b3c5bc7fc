#pragma once

#include "platform/linux/root.h"

#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// A thermal zone of the kernel, Documentation/driver-api/thermal/sysfs-api.rst.
struct ThermalZone {
    std::string type;   ///< e.g. "cpu-thermal"
    int number = 0;     ///< of thermal_zoneN
    std::string folder; ///< where its attributes are opened
};

/// The zones that are not listed as hardware monitoring chips already, by type and then by number.
std::vector<ThermalZone> readThermalZones(const Root& root);

} // namespace tarvo::linux_platform
