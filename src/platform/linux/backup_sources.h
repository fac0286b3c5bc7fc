#pragma once

#include "platform/child_processes.h"
#include "platform/clock.h"
#include "platform/linux/linux_backups.h"
#include "platform/linux/root.h"
#include "platform/posix/environment.h"

#include <memory>

namespace tarvo::linux_platform {

/// The backup tools that Linux desktops know, in order of preference. `tools` may be null: then only files
/// are looked at, as for a recorded machine. Clock and tools outlive the result.
std::unique_ptr<Backups> makeLinuxBackups(const Root& root, const Environment& environment,
                                          const Clock& clock, ChildProcesses* tools);

} // namespace tarvo::linux_platform
