#pragma once

#include "core/stats_snapshot.h"
#include "platform/backup.h"

namespace tarvo {

/// State of the backups, asked from the backup tool in text. Waits for two child processes: not on the main
/// thread.
TimeMachineInfo readTimeMachineInfo(BackupTool& tool);

/// The same from backups that answer with values. Blocks: not on the main thread.
TimeMachineInfo readTimeMachineInfo(Backups& backups);

} // namespace tarvo
