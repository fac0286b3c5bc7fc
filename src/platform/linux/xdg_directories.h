#pragma once

#include "platform/posix/environment.h"

#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// Where the user's files belong by the XDG Base Directory Specification, without a slash at the end. A
/// variable that holds no absolute path is ignored. All are absent when the user has no home folder.

/// The home folder: HOME, or what the user database says.
std::optional<std::string> homeDirectory(const Environment& environment);
/// XDG_CONFIG_HOME or ~/.config.
std::optional<std::string> configHome(const Environment& environment);
/// XDG_DATA_HOME or ~/.local/share.
std::optional<std::string> dataHome(const Environment& environment);

/// The file of the preferences.
std::optional<std::string> preferenceFilePath(const Environment& environment);
/// The folder of the history, the alert log and the automations.
std::optional<std::string> applicationDataFolder(const Environment& environment);
/// The desktop entry that starts the program with the session.
std::optional<std::string> autostartFilePath(const Environment& environment);

} // namespace tarvo::linux_platform
