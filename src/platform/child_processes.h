#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// Runs the system's tools. Any thread but the main one.
class ChildProcesses {
public:
    virtual ~ChildProcesses() = default;
    /// What the executable, a fixed path, writes to its standard output when run with these arguments, read
    /// to its end before the exit is awaited. Its exit status and what it writes elsewhere do not matter.
    /// Absent when it cannot be started.
    virtual std::optional<std::string> output(const std::string& executable,
                                              const std::vector<std::string>& arguments) = 0;
};

} // namespace tarvo
