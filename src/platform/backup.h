#pragma once

#include "platform/clock.h"

#include <optional>
#include <string>

namespace tarvo {

/// What a backup tool tells of itself, as values.
struct BackupState {
    bool isRunning = false;
    std::optional<double> fraction;       ///< progress, 0 to 1; negative when the tool does not know
    std::optional<WallTime> latestBackup; ///< when the latest completed backup was taken
    bool operator==(const BackupState&) const = default;
};

/// Backup tools that can be asked for values. Blocks: not on the main thread.
class Backups {
public:
    virtual ~Backups() = default;
    virtual BackupState state() = 0;
};

/// The backup tool that answers with text. Blocks for a child process: not on the main thread.
class BackupTool {
public:
    virtual ~BackupTool() = default;
    /// Standard output of one command of the tool, "status" or "latestbackup"; absent when it could not be
    /// started.
    virtual std::optional<std::string> output(const std::string& command) = 0;
};

} // namespace tarvo
