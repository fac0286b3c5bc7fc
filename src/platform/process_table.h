#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tarvo {

/// What the rows of a process table are ordered by, heaviest first.
enum class ProcessOrder { cpu, memory };

/// What the process-status tool prints of one process, as a record.
struct ProcessRow {
    std::int32_t pid = 0;
    double cpu = 0;        ///< percent of one core; can exceed 100
    double memPercent = 0; ///< resident share of physical memory
    std::string command;   ///< absolute path of the executable, or its bare name where the path is not known
    bool operator==(const ProcessRow&) const = default;
};

/// The running processes, on a platform that answers records instead of a tool's text. Blocks for the time of
/// the reading: any thread but the main one. One object serves one consumer, so that its shares are measured
/// over the time since that consumer asked last.
class ProcessTable {
public:
    virtual ~ProcessTable() = default;
    /// Heaviest first, equal ones by ascending pid. All processes, or the first `limit` of them where there
    /// are more; a limit below 1 counts as 1. Empty when the processes cannot be listed.
    virtual std::vector<ProcessRow> rows(ProcessOrder order, std::int64_t limit) = 0;
};

} // namespace tarvo
