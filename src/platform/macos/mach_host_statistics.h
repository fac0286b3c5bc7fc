#pragma once

#include "platform/host_statistics.h"

namespace tarvo::macos_platform {

/// Counters of the kernel: Mach host statistics and sysctl(3).
class MachHostStatistics : public HostStatistics {
public:
    MachHostStatistics();
    ~MachHostStatistics() override;
    MachHostStatistics(const MachHostStatistics&) = delete;
    MachHostStatistics& operator=(const MachHostStatistics&) = delete;

    bool processorLoad(std::vector<CoreTicks>& cores) override;
    MemoryStatistics memory() override;
    std::optional<std::array<double, 3>> loadAverages() override;

private:
    std::optional<PageStatistics> pages() const;

    const unsigned int host_; ///< a right to the host port, asked for once: each asking adds a reference
};

} // namespace tarvo::macos_platform
