#include "platform/linux/linux_backups.h"

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

/// Absent when none of the tools is set up.
std::optional<BackupState> combine(const LinuxBackups::Providers& providers) {
    std::optional<BackupState> combined;
    for (const auto& provider : providers) {
        const auto one = provider->state();
        if (!one) continue;
        if (!combined) combined.emplace();
        if (one->isRunning && !combined->isRunning) {
            combined->isRunning = true;
            combined->fraction = one->fraction;
        }
        combined->latestBackup = std::max(combined->latestBackup, one->latestBackup);
    }
    return combined;
}

} // namespace

BackupState LinuxBackups::state() {
    if (const auto backups = combine(backups_)) return *backups;
    return combine(snapshots_).value_or(BackupState{});
}

} // namespace tarvo::linux_platform
