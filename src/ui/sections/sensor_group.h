#pragma once

#include "localization/localization_manager.h"
#include "sensors/sensor_reading.h"
#include "ui/style/color.h"

#include <string>
#include <vector>

namespace tarvo::ui {

/// Temperatures of one part of the machine.
struct SensorGroup {
    std::string title;
    Color color;
    std::vector<SensorReading> sensors; ///< in the order in which they were listed
    bool operator==(const SensorGroup&) const = default;
};

/// The readings by what the first two characters of their keys say, in a fixed order of groups; groups
/// without a reading are left out.
std::vector<SensorGroup> sensorGroups(const std::vector<SensorReading>& readings,
                                      const LocalizationManager& loc);

} // namespace tarvo::ui
