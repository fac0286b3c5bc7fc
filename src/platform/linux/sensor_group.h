#pragma once

#include "platform/linux/hwmon_chip.h"

#include <string_view>

namespace tarvo::linux_platform {

/// What a temperature belongs to; the key table groups by it.
enum class SensorGroup {
    performanceCore, ///< or any processor core
    efficiencyCore,
    gpu,     ///< one figure a GPU
    package, ///< processor package or die
    gpuOther,
    storage,
    memory,
    wireless,
    battery,
    acpiZone,
    board,
    other,
};

/// The first two characters of the group's keys, e.g. "Tp".
std::string_view keyPrefix(SensorGroup group);

/// The group of a chip's temperature. A core of an Intel processor counts as a performance core here; which
/// cores are efficient tells the processor's topology.
SensorGroup temperatureGroup(const HwmonChip& chip, const HwmonInput& input);

/// The group of a thermal zone by its type.
SensorGroup zoneGroup(std::string_view type);

/// A board's own controller, whose unconnected pins read nonsense.
bool isSuperIO(std::string_view chipName);

/// A chip of a graphics card.
bool isGPUChip(std::string_view chipName);

} // namespace tarvo::linux_platform
