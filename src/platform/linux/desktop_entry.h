#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// What an application's desktop file says that tells its processes and its icon.
struct DesktopEntry {
    std::string icon;    ///< icon theme name or absolute path
    std::string program; ///< base name of the program that Exec starts; empty when there is none
};

/// Reads a desktop file (freedesktop.org Desktop Entry Specification 1.5). Absent unless it describes an
/// application that has an icon.
std::optional<DesktopEntry> parseDesktopEntry(std::string_view text);

/// Base name of the program in an Exec value: quotes are resolved, a leading env with its assignments is
/// passed over. Empty when there is none.
std::string programOfExec(std::string_view exec);

} // namespace tarvo::linux_platform
