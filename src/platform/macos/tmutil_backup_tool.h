#pragma once

#include "platform/backup.h"
#include "platform/child_processes.h"

namespace tarvo::macos_platform {

/// The system's backup tool.
class TmutilBackupTool : public BackupTool {
public:
    /// The child processes outlive the tool.
    explicit TmutilBackupTool(ChildProcesses& children) : children_(children) {}

    std::optional<std::string> output(const std::string& command) override;

private:
    ChildProcesses& children_;
};

} // namespace tarvo::macos_platform
