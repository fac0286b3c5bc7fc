#pragma once

#include "platform/linux/kept_file.h"
#include "platform/linux/numbered_entries.h"
#include "platform/linux/process_scan.h"
#include "platform/linux/root.h"
#include "platform/posix/file_descriptor.h"

#include <array>
#include <string>

namespace tarvo::linux_platform {

/// Reads the stat file of every process in one pass over /proc. Once its buffers have grown, a pass takes no
/// memory. For one thread.
class ProcessScanner {
public:
    explicit ProcessScanner(const Root& root);

    /// Replaces the scan by the processes of this moment, `takenAt` apart. Processes that end during the pass
    /// are left out. False, and no processes, when /proc cannot be listed.
    bool scan(ProcessScan& scan);

    /// The open /proc, for what is read of single processes; -1 before the first scan and after a failed one.
    int folder() const { return folder_.get(); }

private:
    static constexpr std::size_t longestStat = 4096;

    void addProcess(const NumberedEntry& entry, ProcessScan& scan);
    std::string_view readStat(std::string_view pid);
    std::uint64_t physicalBytes();

    std::string path_;
    FileDescriptor folder_;
    KeptFile memoryInfo_;
    NumberedEntries entries_;
    std::array<char, longestStat> buffer_{};
};

} // namespace tarvo::linux_platform
