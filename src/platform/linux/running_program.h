#pragma once

#include "platform/linux/root.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// A process that was found by its name.
struct RunningProgram {
    std::int32_t pid = 0;
    std::int32_t parent = 0; ///< pid
    std::string name;        ///< as the kernel knows it, at most 15 bytes
    std::vector<std::string> arguments;
    bool isOwn = false; ///< of the user who runs this program

    bool hasArgument(std::string_view argument) const;
};

/// The processes that bear one of the names. Walks over all processes: not on the main thread.
std::vector<RunningProgram> findPrograms(const Root& root, const std::vector<std::string_view>& names);

/// Whether a process of that name has the pid.
bool isRunning(const Root& root, std::int32_t pid, std::string_view name);

} // namespace tarvo::linux_platform
