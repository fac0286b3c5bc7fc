#include "platform/linux/timeshift.h"

#include "platform/linux/folder.h"
#include "platform/linux/newest_snapshot.h"
#include "platform/linux/running_program.h"

#include <algorithm>

namespace tarvo::linux_platform {

namespace {

constexpr std::string_view pattern = "yyyy-MM-dd_HH-mm-ss";

} // namespace

std::optional<BackupState> Timeshift::state() {
    if (!pathExists(root_.path("/etc/timeshift/timeshift.json"))) return std::nullopt;
    BackupState state;
    state.isRunning = isRunning();
    state.latestBackup = latest();
    return state;
}

bool Timeshift::isRunning() const {
    const auto programs = findPrograms(root_, {"timeshift"});
    return std::any_of(programs.begin(), programs.end(), [](const auto& candidate) {
        return candidate.hasArgument("--create") || candidate.hasArgument("--check");
    });
}

std::optional<WallTime> Timeshift::latest() const {
    auto newest = newestSnapshot(root_.path("/timeshift/snapshots"), pattern);
    const auto mounts = root_.path("/run/timeshift");
    for (const auto& mount : folderEntries(mounts)) {
        const auto folder = mounts + "/" + mount + "/backup/timeshift/snapshots";
        newest = std::max(newest, newestSnapshot(folder, pattern));
    }
    return newest;
}

} // namespace tarvo::linux_platform
