#pragma once

#include "platform/linux/root.h"

#include <cstdint>
#include <string>

namespace tarvo::linux_platform {

/// Name of a process as the kernel keeps it, 15 bytes at most (proc(5), "comm"); empty when there is no such
/// process.
std::string processName(const Root& root, std::uint32_t pid);

} // namespace tarvo::linux_platform
