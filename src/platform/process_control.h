#pragma once

#include <cstdint>
#include <functional>

namespace tarvo {

/// Asks processes to end.
class ProcessControl {
public:
    /// Sends the polite request to end (SIGTERM) and returns at once. False when nothing was sent: the
    /// process has ended, or there is no permission.
    using Terminate = std::function<bool()>;

    virtual ~ProcessControl() = default;
    /// Takes hold of the process that was listed under the number, so that the request reaches exactly this
    /// one whenever it is made: never a group, never pid 1 and, where the system has more than the number to
    /// hold a process by, never one that takes over the number meanwhile. Any thread.
    virtual Terminate terminator(std::int32_t pid) = 0;

    bool terminate(std::int32_t pid) { return terminator(pid)(); }
};

} // namespace tarvo
