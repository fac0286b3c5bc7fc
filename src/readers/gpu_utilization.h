#pragma once

#include "platform/io_registry.h"

#include <optional>

namespace tarvo {

/// Utilisation of the first GPU that states one, percent, as the driver gives it. Absent when none does.
/// Several GPUs are not averaged. Hardware queue only.
std::optional<double> gpuUtilizationPercent(IORegistry& registry);

} // namespace tarvo
