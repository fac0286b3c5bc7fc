#pragma once

#include "core/stats_snapshot.h"
#include "platform/io_registry.h"
#include "platform/power_sources.h"

#include <optional>

namespace tarvo {

/// The internal battery: charge and times from the first power source, wear from the registry entry
/// "AppleSmartBattery". Absent on a machine without a battery. Keeps nothing between calls.
std::optional<BatteryInfo> readBatteryInfo(PowerSources& powerSources, IORegistry& registry);

} // namespace tarvo
