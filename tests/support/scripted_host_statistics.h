#pragma once

#include "platform/host_statistics.h"

namespace tarvo {

/// Counters as the test wrote them down.
class ScriptedHostStatistics : public HostStatistics {
public:
    bool processorLoad(std::vector<CoreTicks>& cores) override {
        ++processorLoadCalls;
        if (processorLoadFails) return false;
        cores = ticks;
        return true;
    }
    MemoryStatistics memory() override { return memoryAnswer; }
    std::optional<std::array<double, 3>> loadAverages() override { return loads; }

    std::vector<CoreTicks> ticks;
    bool processorLoadFails = false;
    int processorLoadCalls = 0;
    MemoryStatistics memoryAnswer;
    std::optional<std::array<double, 3>> loads;
};

} // namespace tarvo
