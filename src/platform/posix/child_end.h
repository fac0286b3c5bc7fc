#pragma once

#include "platform/child_processes.h"

#include <chrono>
#include <optional>
#include <sys/types.h>

namespace tarvo {

/// When a tool has to be done; absent: whenever it is.
using ChildDeadline = std::optional<std::chrono::steady_clock::time_point>;

bool hasPassed(const ChildDeadline& deadline);
/// Milliseconds that poll may wait, at most `longest`; -1 without a deadline and without a longest wait.
int millisecondsUntil(const ChildDeadline& deadline, int longest = -1);

/// Takes note of the end of a child; `options` are those of waitpid(2). False while it still runs.
bool reapChild(pid_t pid, int options, ChildProcessResult& result);

} // namespace tarvo
