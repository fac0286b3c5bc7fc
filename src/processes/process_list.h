#pragma once

#include "core/stats_snapshot.h"
#include "platform/child_processes.h"
#include "platform/process_table.h"

#include <cstdint>
#include <vector>

namespace tarvo {

/// The heaviest processes by the measure, heaviest first: reading stops as soon as the list holds `limit`
/// records, which is looked at after each record, so a limit of 0 or less still gives one. Empty when the
/// processes cannot be listed. Blocks for the time of the reading: not on the main thread. From the
/// process-status tool, which orders them itself, or from a platform's records.
std::vector<ProcInfo> topProcesses(ChildProcesses& children, ProcessSort sortedBy, std::int64_t limit);
std::vector<ProcInfo> topProcesses(ProcessTable& table, ProcessSort sortedBy, std::int64_t limit);

} // namespace tarvo
