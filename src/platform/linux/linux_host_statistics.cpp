#include "platform/linux/linux_host_statistics.h"

#include "platform/linux/load_average.h"
#include "platform/linux/meminfo.h"
#include "platform/linux/page_partition.h"

#include <unistd.h>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t firstStatBeginning = 1024;

} // namespace

LinuxHostStatistics::LinuxHostStatistics(const Root& root, std::uint64_t pageSize)
    : stat_(root.path("/proc/stat")), meminfo_(root.path("/proc/meminfo")),
      loadavg_(root.path("/proc/loadavg")), statBeginning_(firstStatBeginning), zram_(root),
      pageSize_(pageSize) {}

std::uint64_t LinuxHostStatistics::systemPageSize() {
    return static_cast<std::uint64_t>(::sysconf(_SC_PAGESIZE));
}

bool LinuxHostStatistics::processorLoad(std::vector<CoreTicks>& cores) {
    // The processor lines come first; the long interrupt counts after them are not even copied.
    for (;;) {
        const auto text = stat_.readBeginning(statBeginning_);
        if (!text) return false;
        const bool isComplete = parseCoreTicks(*text, raw_);
        if (isComplete || text->size() < statBeginning_) break;
        if (statBeginning_ >= defaultReadLimit) return false;
        statBeginning_ *= 2;
    }
    if (raw_.empty()) return false;
    ticks_.advance(raw_, cores);
    return true;
}

MemoryStatistics LinuxHostStatistics::memory() {
    const auto text = meminfo_.read();
    if (!text) return {};
    const auto info = parseMemInfo(*text);
    return {physicalBytes(info), partitionPages(info, zramBytes(info.swapTotal), pageSize_), swapUsage(info)};
}

std::optional<std::array<double, 3>> LinuxHostStatistics::loadAverages() {
    const auto text = loadavg_.read();
    return text ? parseLoadAverages(*text) : std::nullopt;
}

// Looking through all disks at every tick would cost more than the tick; the disks that matter are swapped
// to.
std::uint64_t LinuxHostStatistics::zramBytes(std::uint64_t swapTotal) {
    if (swapTotal_ != swapTotal) zram_.list();
    swapTotal_ = swapTotal;
    return zram_.usedBytes();
}

} // namespace tarvo::linux_platform
