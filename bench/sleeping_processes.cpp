// Keeps a number of sleeping child processes until its standard input ends.
// Usage: sleeping_processes COUNT          prints how many there are; at most 10,000

#include <signal.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

namespace {

constexpr int most = 10'000;

std::vector<pid_t> startChildren(int count) {
    std::vector<pid_t> children;
    for (int index = 0; index < count; ++index) {
        const pid_t child = ::fork();
        if (child < 0) break;
        if (child == 0) {
            ::prctl(PR_SET_PDEATHSIG, SIGKILL); // none outlives the parent, however that ends
            for (;;)
                ::pause();
        }
        children.push_back(child);
    }
    return children;
}

} // namespace

int main(int count, char** arguments) {
    if (count != 2) return EXIT_FAILURE;
    const auto children = startChildren(std::clamp(std::atoi(arguments[1]), 0, most));
    std::printf("%zu\n", children.size());
    std::fflush(stdout);
    char byte = 0;
    while (::read(STDIN_FILENO, &byte, 1) > 0) {
    }
    for (const pid_t child : children)
        ::kill(child, SIGKILL);
    for (const pid_t child : children)
        ::waitpid(child, nullptr, 0);
    return EXIT_SUCCESS;
}
