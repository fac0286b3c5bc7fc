#pragma once

#include "platform/host_statistics.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/proc_stat.h"
#include "platform/linux/root.h"
#include "platform/linux/virtual_ticks.h"
#include "platform/linux/zram.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tarvo::linux_platform {

/// Processor, memory and load counters from /proc/stat, /proc/meminfo, /proc/loadavg and the compressed RAM
/// disks' mm_stat. The files stay open: a call costs one read a file and allocates nothing once the buffers
/// have grown. One instance a consumer of processorLoad(). Main thread only.
class LinuxHostStatistics : public HostStatistics {
public:
    explicit LinuxHostStatistics(const Root& root, std::uint64_t pageSize = systemPageSize());

    bool processorLoad(std::vector<CoreTicks>& cores) override;
    MemoryStatistics memory() override;
    std::optional<std::array<double, 3>> loadAverages() override;

    static std::uint64_t systemPageSize();

private:
    std::uint64_t zramBytes(std::uint64_t swapTotal);

    KeptFile stat_;
    KeptFile meminfo_;
    KeptFile loadavg_;
    std::size_t statBeginning_; ///< bytes that held all processor lines last time
    std::vector<RawCoreTicks> raw_;
    VirtualTicks ticks_;
    ZramDevices zram_;
    std::optional<std::uint64_t> swapTotal_;
    std::uint64_t pageSize_;
};

} // namespace tarvo::linux_platform
