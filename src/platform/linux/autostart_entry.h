#pragma once

#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// The desktop entry (freedesktop.org Desktop Application Autostart Specification 0.5) that starts the
/// program with the session. A session passes it over when the program is gone. `program` is an absolute
/// path.
std::string autostartEntry(std::string_view program);

/// Whether a session follows an entry of that text: one that starts something and that neither the user nor a
/// tool of the desktop has turned off. Conditions on the kind of desktop are not looked at.
bool isFollowedAutostartEntry(std::string_view text);

} // namespace tarvo::linux_platform
