#pragma once

#include "platform/linux/backup_provider.h"
#include "platform/linux/bus_tool.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// A unit as systemd lists it.
struct SystemdUnit {
    std::string name;
    std::string activeState;
    std::string subState;
    std::string path; ///< of its object on the bus
    bool operator==(const SystemdUnit&) const = default;
};

/// The reply to ListUnitsByPatterns as busctl prints it; what follows a broken entry is left out.
std::vector<SystemdUnit> parseUnitList(std::string_view text);

/// Whether a unit of that name makes backups: what the distribution itself does by that word does not count.
bool isBackupUnit(std::string_view name);

/// Backups that run as services or timers of systemd, of the user or of the system, and are called so.
/// Interface: org.freedesktop.systemd1(5).
class SystemdBackups : public BackupProvider {
public:
    /// The tools outlive this.
    explicit SystemdBackups(ChildProcesses& tools) : bus_(tools) {}

    std::optional<BackupState> state() override;

private:
    std::vector<SystemdUnit> units(Bus bus);
    void addService(Bus bus, const SystemdUnit& unit, BackupState& state);

    BusTool bus_;
};

} // namespace tarvo::linux_platform
