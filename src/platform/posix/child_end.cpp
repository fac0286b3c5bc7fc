#include "platform/posix/child_end.h"

#include <sys/wait.h>

#include <algorithm>
#include <cerrno>

namespace tarvo {

using SteadyClock = std::chrono::steady_clock;

bool hasPassed(const ChildDeadline& deadline) {
    return deadline && SteadyClock::now() >= *deadline;
}

int millisecondsUntil(const ChildDeadline& deadline, int longest) {
    if (!deadline) return longest;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - SteadyClock::now()).count();
    const int bounded = static_cast<int>(std::clamp<decltype(left)>(left, 0, 1'000'000'000));
    return longest < 0 ? bounded : std::min(bounded, longest);
}

bool reapChild(pid_t pid, int options, ChildProcessResult& result) {
    int status = 0;
    pid_t answer = 0;
    do {
        answer = ::waitpid(pid, &status, options);
    } while (answer < 0 && errno == EINTR);
    if (answer == 0) return false;
    if (answer == pid && WIFEXITED(status)) result.exitStatus = WEXITSTATUS(status);
    return true;
}

} // namespace tarvo
