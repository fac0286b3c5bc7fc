#pragma once

#include "platform/child_processes.h"
#include "platform/linux/backup_provider.h"
#include "platform/linux/root.h"

#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// The moment in a quoted text as GSettings writes it: "'2025-07-15T12:00:00Z'". Absent for the empty text
/// and for anything else.
std::optional<WallTime> parseGSettingsTime(std::string_view text);

/// Déjà Dup, installed as package or as Flatpak.
class DejaDup : public BackupProvider {
public:
    /// `tools` may be null: then only the Flatpak's settings file is looked at. `home` is the user's home
    /// folder.
    DejaDup(Root root, std::string home, ChildProcesses* tools)
        : root_(std::move(root)), home_(std::move(home)), tools_(tools) {}

    std::optional<BackupState> state() override;

private:
    std::optional<WallTime> lastBackup() const;
    bool isRunning() const;

    Root root_;
    std::string home_;
    ChildProcesses* tools_;
};

} // namespace tarvo::linux_platform
