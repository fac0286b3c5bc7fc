#include "processes/network_processes.h"

#include "processes/nettop_text.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tarvo {

namespace {

std::uint64_t total(const NetProcInfo& process) {
    const auto sum = process.bytesIn + process.bytesOut;
    return sum < process.bytesIn ? UINT64_MAX : sum;
}

} // namespace

std::vector<NetProcInfo> heaviestNetworkProcesses(std::vector<NetProcInfo> processes, std::int64_t limit) {
    if (limit < 0) std::abort();
    std::erase_if(processes,
                  [](const auto& process) { return process.bytesIn == 0 && process.bytesOut == 0; });
    std::stable_sort(processes.begin(), processes.end(),
                     [](const auto& left, const auto& right) { return total(left) > total(right); });
    if (static_cast<std::uint64_t>(limit) < processes.size())
        processes.resize(static_cast<std::size_t>(limit));
    return processes;
}

std::vector<NetProcInfo> topNetworkProcesses(ChildProcesses& children, std::int64_t limit) {
    const auto text = children.output("/usr/bin/nettop", {"-P", "-L", "1", "-x", "-J", "bytes_in,bytes_out"});
    return heaviestNetworkProcesses(parseNetworkStatisticsText(text.value_or("")), limit);
}

std::vector<NetProcInfo> topNetworkProcesses(ProcessTraffic& traffic, std::int64_t limit) {
    std::vector<NetProcInfo> processes;
    for (auto& row : traffic.rows())
        processes.push_back({std::move(row.process), row.bytesIn, row.bytesOut});
    return heaviestNetworkProcesses(std::move(processes), limit);
}

} // namespace tarvo
