#pragma once

#include "platform/linux/quick_action_means.h"

#include <vector>

namespace tarvo::linux_platform {

/// The ways in which this desktop switches between its light and its dark appearance, best first.
std::vector<ActionMeans> darkModeMeans(const DesktopEnvironment& environment);

/// The installed theme that is the dark version of a light one or the light version of a dark one; empty when
/// there is none. `folders` hold a folder for each theme.
std::string siblingTheme(const std::string& theme, const std::vector<std::string>& folders);

/// The value of a key in what "gsettings list-recursively" prints for one schema, without its quotes; empty
/// when it is not there.
std::string settingIn(std::string_view listing, std::string_view key);

} // namespace tarvo::linux_platform
