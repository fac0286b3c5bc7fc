#pragma once

#include "platform/backup.h"

#include <optional>

namespace tarvo::linux_platform {

/// One backup tool. Blocks: not on the main thread; one call at a time.
class BackupProvider {
public:
    virtual ~BackupProvider() = default;
    /// Absent when the user has not set the tool up, or it is not installed.
    virtual std::optional<BackupState> state() = 0;
};

} // namespace tarvo::linux_platform
