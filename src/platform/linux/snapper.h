#pragma once

#include "platform/linux/backup_provider.h"
#include "platform/linux/bus_tool.h"
#include "platform/linux/root.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// The names in the reply to ListConfigs as busctl prints it.
std::vector<std::string> parseSnapperConfigs(std::string_view text);
/// The latest date in the reply to ListSnapshots as busctl prints it; absent when there is none.
std::optional<WallTime> parseNewestSnapperDate(std::string_view text);

/// snapper, which keeps snapshots of the system on the machine's own disk. Its daemon is started by being
/// asked.
class Snapper : public BackupProvider {
public:
    /// The tools outlive this.
    Snapper(Root root, ChildProcesses& tools) : root_(std::move(root)), bus_(tools) {}

    std::optional<BackupState> state() override;

private:
    Root root_;
    BusTool bus_;
};

} // namespace tarvo::linux_platform
