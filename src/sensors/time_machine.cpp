#include "sensors/time_machine.h"

#include "platform/local_time.h"
#include "platform/utf8.h"
#include "sensors/time_machine_text.h"

namespace tarvo {
namespace {

std::optional<std::string> text(BackupTool& tool, const std::string& command) {
    auto output = tool.output(command);
    return output && isUTF8(*output) ? output : std::nullopt;
}

} // namespace

TimeMachineInfo readTimeMachineInfo(BackupTool& tool) {
    TimeMachineInfo info;
    if (const auto status = text(tool, "status")) {
        info.isRunning = backupIsRunning(*status);
        info.percent = backupPercent(*status);
    }
    if (const auto latest = text(tool, "latestbackup")) {
        const auto name = latestBackupName(*latest);
        if (name) info.lastBackupDate = parseLocalTime(*name, "yyyy-MM-dd-HHmmss");
    }
    return info;
}

TimeMachineInfo readTimeMachineInfo(Backups& backups) {
    const auto state = backups.state();
    TimeMachineInfo info;
    info.isRunning = state.isRunning;
    if (state.fraction && *state.fraction >= 0) info.percent = *state.fraction * 100;
    info.lastBackupDate = state.latestBackup;
    return info;
}

} // namespace tarvo
