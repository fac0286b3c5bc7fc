#pragma once

#include "platform/child_processes.h"

namespace tarvo {

/// Starts tools with posix_spawn, each in a process group of its own.
class POSIXChildProcesses : public ChildProcesses {
public:
    std::optional<ChildProcessResult> run(const ChildProcessRequest& request) override;
};

} // namespace tarvo
