#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// Absolute path of the process's executable as one printable line, or its bare name where the path is not to
/// be had: that of another user's process shows only in its first argument. `folder` is the open /proc,
/// `name` what the process's stat file calls it.
std::string processCommand(int folder, std::int32_t pid, std::string_view name);

/// A name out of a stat file as one printable line; "?" when the process has none.
std::string printableName(std::string_view name);

/// The first argument out of the content of /proc/PID/cmdline, where it is a path that ends in a component
/// that begins with the (cut) name; else empty.
std::string_view pathInCommandLine(std::string_view commandLine, std::string_view name);

/// The text of the link /proc/PID/exe without what the kernel adds for a removed or unreachable file.
std::string_view pathInExecutableLink(std::string_view link);

} // namespace tarvo::linux_platform
