#include "readers/load_averages.h"

namespace tarvo {

std::optional<LoadAverages> loadAverages(HostStatistics& host) {
    const auto loads = host.loadAverages();
    if (!loads) return std::nullopt;
    return LoadAverages{(*loads)[0], (*loads)[1], (*loads)[2]};
}

} // namespace tarvo
