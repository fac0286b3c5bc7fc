#pragma once

#include "core/stats_snapshot.h"
#include "platform/child_processes.h"
#include "platform/sockets.h"

#include <cstdint>
#include <vector>

namespace tarvo {

/// The first `limit` processes by bytes received and sent together, most first; equal ones stay in the order
/// given, and those that moved nothing are left out. A negative limit is a programming error: the process
/// stops.
std::vector<NetProcInfo> heaviestNetworkProcesses(std::vector<NetProcInfo> processes, std::int64_t limit);

/// The processes with the most network traffic; empty when they cannot be listed. Blocks: not on the main
/// thread. From the network-statistics tool, or from a platform's records.
std::vector<NetProcInfo> topNetworkProcesses(ChildProcesses& children, std::int64_t limit);
std::vector<NetProcInfo> topNetworkProcesses(ProcessTraffic& traffic, std::int64_t limit);

} // namespace tarvo
