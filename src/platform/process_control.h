#pragma once

#include <cstdint>

namespace tarvo {

/// Asks processes to end.
class ProcessControl {
public:
    virtual ~ProcessControl() = default;
    /// Sends the polite request to end (SIGTERM) to exactly this process, never to a group and never to
    /// pid 1. False when nothing was sent: no such process, no permission, or the number now belongs to a
    /// process other than the one that was listed under it. Returns at once; any thread.
    virtual bool terminate(std::int32_t pid) = 0;
};

} // namespace tarvo
