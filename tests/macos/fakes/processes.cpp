#include "macos/fakes/processes.h"

#include <signal.h>

#include <cerrno>

namespace tarvo::fakes {

Processes& processes() {
    static Processes instance;
    return instance;
}

} // namespace tarvo::fakes

using namespace tarvo::fakes;

extern "C" int kill(pid_t process, int signal) noexcept {
    processes().signals.emplace_back(process, signal);
    if (!processes().refuses) return 0;
    errno = ESRCH;
    return -1;
}
