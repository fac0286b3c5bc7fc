#pragma once

#include "platform/linux/backup_provider.h"

#include <memory>
#include <vector>

namespace tarvo::linux_platform {

/// The backup tools of the machine as one: running and progress as the first running one tells them, the date
/// of the latest backup of all.
class LinuxBackups : public Backups {
public:
    using Providers = std::vector<std::unique_ptr<BackupProvider>>;

    /// Snapshots on the same disk are no backups: their tools are asked only where no backup tool is set up.
    LinuxBackups(Providers backups, Providers snapshots)
        : backups_(std::move(backups)), snapshots_(std::move(snapshots)) {}

    BackupState state() override;

private:
    Providers backups_;
    Providers snapshots_;
};

} // namespace tarvo::linux_platform
