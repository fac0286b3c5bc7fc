#pragma once

#include "platform/linux/quick_action_means.h"

#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// The ways to open a window of the file manager, best first.
std::vector<ActionMeans> newWindowMeans(const DesktopEnvironment& environment);
/// The ways to restart the file manager, best first.
std::vector<ActionMeans> restartFileManagerMeans(const DesktopEnvironment& environment);

/// The file: address of an absolute path (RFC 8089), with everything escaped that any reader could take for a
/// mark of its own.
std::string fileAddress(std::string_view path);

} // namespace tarvo::linux_platform
