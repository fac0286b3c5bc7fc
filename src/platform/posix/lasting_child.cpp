#include "platform/posix/lasting_child.h"

#include <poll.h>
#include <sys/wait.h>

#include <algorithm>
#include <system_error>
#include <thread>

namespace tarvo {
namespace {

constexpr int longestPause = 100; ///< milliseconds

void reapLater(pid_t pid) {
    try {
        std::thread([pid] {
            ChildProcessResult unused;
            reapChild(pid, 0, unused);
        }).detach();
    } catch (const std::system_error&) {
        return; // the system does it when this process ends
    }
}

} // namespace

ChildProcessResult awaitLastingChild(pid_t pid, ErrorFile& errors, const ChildDeadline& deadline) {
    ChildProcessResult result;
    for (int pause = 1; !reapChild(pid, WNOHANG, result); pause = std::min(2 * pause, longestPause)) {
        if (hasPassed(deadline)) {
            result.exceededTimeLimit = true;
            reapLater(pid);
            break;
        }
        ::poll(nullptr, 0, millisecondsUntil(deadline, pause));
        errors.shrink(ChildProcesses::errorTailLength);
    }
    result.errorTail = errors.finish(ChildProcesses::errorTailLength);
    return result;
}

} // namespace tarvo
