#include "platform/linux/process_growth.h"

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

std::uint64_t latestStart(const ProcessScan& scan) {
    std::uint64_t latest = 0;
    for (const auto& process : scan.processes)
        latest = std::max(latest, process.startTime);
    return latest;
}

} // namespace

void measureGrowth(const ProcessScan& earlier, const ProcessScan& later, std::vector<std::uint64_t>& growth) {
    const auto alreadyRunning = latestStart(earlier);
    growth.clear();
    auto before = earlier.processes.begin();
    for (const auto& process : later.processes) {
        while (before != earlier.processes.end() && before->pid < process.pid)
            ++before;
        std::uint64_t ticksBefore = process.startTime < alreadyRunning ? process.ticks : 0;
        if (before != earlier.processes.end() && before->pid == process.pid &&
            before->startTime == process.startTime) {
            ticksBefore = before->ticks;
        }
        growth.push_back(process.ticks > ticksBefore ? process.ticks - ticksBefore : 0);
    }
}

} // namespace tarvo::linux_platform
