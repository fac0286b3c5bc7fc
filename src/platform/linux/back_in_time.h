#pragma once

#include "platform/linux/backup_provider.h"
#include "platform/linux/root.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Where one profile of Back In Time keeps its snapshots.
struct BackInTimeProfile {
    std::string number; ///< "1" for the first
    std::string path;   ///< of the backup disk
    std::string host;   ///< empty: this machine's name
    std::string user;   ///< empty: this user
    std::string place;  ///< the profile's number within the disk
    bool operator==(const BackInTimeProfile&) const = default;
};

/// The profiles that a configuration names; those without a path are left out.
std::vector<BackInTimeProfile> parseBackInTimeConfig(std::string_view text);

/// Back In Time: its configuration, its lock and progress files and the folders that it made.
class BackInTime : public BackupProvider {
public:
    struct Folders {
        std::string config; ///< $XDG_CONFIG_HOME
        std::string data;   ///< $XDG_DATA_HOME
    };

    BackInTime(Root root, Folders folders, std::string user)
        : root_(std::move(root)), folders_(std::move(folders)), user_(std::move(user)) {}

    std::optional<BackupState> state() override;

private:
    std::string worker(const BackInTimeProfile& profile) const;
    bool isRunning(const BackInTimeProfile& profile) const;
    std::optional<double> fraction(const BackInTimeProfile& profile) const;
    std::optional<WallTime> latest(const BackInTimeProfile& profile) const;

    Root root_;
    Folders folders_;
    std::string user_;
};

} // namespace tarvo::linux_platform
