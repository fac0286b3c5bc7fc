#pragma once

#include "platform/posix/child_end.h"
#include "platform/posix/error_file.h"

namespace tarvo {

/// Waits until the child itself has ended or the deadline has come, whatever it has started. What still runs
/// then goes on; a thread of its own takes note of the end of the child.
ChildProcessResult awaitLastingChild(pid_t pid, ErrorFile& errors, const ChildDeadline& deadline);

} // namespace tarvo
