#include "platform/linux/backup_sources.h"

#include "platform/linux/back_in_time.h"
#include "platform/linux/cached_backup.h"
#include "platform/linux/deja_dup.h"
#include "platform/linux/snapper.h"
#include "platform/linux/systemd_backups.h"
#include "platform/linux/timeshift.h"
#include "platform/linux/xdg_directories.h"

namespace tarvo::linux_platform {

namespace {

constexpr std::chrono::minutes settingsLifetime{1};
constexpr std::chrono::minutes daemonLifetime{10}; // asking starts it

} // namespace

std::unique_ptr<Backups> makeLinuxBackups(const Root& root, const Environment& environment,
                                          const Clock& clock, ChildProcesses* tools) {
    LinuxBackups::Providers backups;
    LinuxBackups::Providers snapshots;
    const auto cached = [&clock](std::chrono::seconds lifetime, std::unique_ptr<BackupProvider> provider) {
        return std::make_unique<CachedBackup>(clock, lifetime, std::move(provider));
    };
    const auto config = configHome(environment);
    const auto data = dataHome(environment);
    const auto user = environment("USER").value_or("");
    if (config && data) {
        backups.push_back(std::make_unique<BackInTime>(root, BackInTime::Folders{*config, *data}, user));
    }
    if (const auto home = homeDirectory(environment)) {
        backups.push_back(cached(settingsLifetime, std::make_unique<DejaDup>(root, *home, tools)));
    }
    snapshots.push_back(std::make_unique<Timeshift>(root));
    if (tools) {
        backups.push_back(cached(settingsLifetime, std::make_unique<SystemdBackups>(*tools)));
        snapshots.push_back(cached(daemonLifetime, std::make_unique<Snapper>(root, *tools)));
    }
    return std::make_unique<LinuxBackups>(std::move(backups), std::move(snapshots));
}

} // namespace tarvo::linux_platform
