#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Desktop file names, without ".desktop", that a process's control group may name, likeliest first. The text
/// is that of /proc/PID/cgroup; the unit's name is built as "app[-launcher]-ID[@random].service" or
/// "app-launcher-ID-random.scope" (systemd.io/DESKTOP_ENVIRONMENTS). Empty for a process outside such a unit.
std::vector<std::string> applicationIDs(std::string_view cgroup);

} // namespace tarvo::linux_platform
