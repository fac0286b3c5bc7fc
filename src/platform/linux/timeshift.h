#pragma once

#include "platform/linux/backup_provider.h"
#include "platform/linux/root.h"

namespace tarvo::linux_platform {

/// Timeshift, which keeps snapshots of the system on the machine's own disk.
class Timeshift : public BackupProvider {
public:
    explicit Timeshift(Root root) : root_(std::move(root)) {}

    std::optional<BackupState> state() override;

private:
    bool isRunning() const;
    std::optional<WallTime> latest() const;

    Root root_;
};

} // namespace tarvo::linux_platform
