#include "readers/gpu_utilization.h"

namespace tarvo {

std::optional<double> gpuUtilizationPercent(IORegistry& registry) {
    const auto services = registry.services("IOAccelerator");
    if (!services) return std::nullopt;
    for (const auto& service : *services) {
        const auto* const performance = service.dictionary("PerformanceStatistics");
        if (performance == nullptr) continue;
        if (const auto percent = performance->number("Device Utilization %")) return percent;
    }
    return std::nullopt;
}

} // namespace tarvo
