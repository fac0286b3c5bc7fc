#pragma once

#include "platform/child_processes.h"
#include "platform/posix/pipe.h"

#include <sys/types.h>

#include <optional>

namespace tarvo {

/// A tool that was started: our ends of its outputs.
struct SpawnedChild {
    pid_t pid;
    FileDescriptor output;
    FileDescriptor error; ///< none when standard error is thrown away
};

/// Starts the tool as the leader of a new process group, with no signal blocked or ignored.
std::optional<SpawnedChild> spawn(const ChildProcessRequest& request);
/// The same for a tool whose output nobody reads and whose standard error goes to a file.
std::optional<pid_t> spawnLasting(const ChildProcessRequest& request, const FileDescriptor& error);

} // namespace tarvo
