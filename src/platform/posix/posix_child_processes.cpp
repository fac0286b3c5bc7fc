#include "platform/posix/posix_child_processes.h"

#include "platform/posix/spawn.h"

#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <utility>

namespace tarvo {
namespace {

using SteadyClock = std::chrono::steady_clock;
using Deadline = std::optional<SteadyClock::time_point>;

/// Milliseconds that poll may wait, at most `longest`; -1 without a deadline and without a longest wait.
int timeoutUntil(const Deadline& deadline, int longest = -1) {
    if (!deadline) return longest;
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*deadline - SteadyClock::now()).count();
    const int bounded = static_cast<int>(std::clamp<decltype(left)>(left, 0, 1'000'000'000));
    return longest < 0 ? bounded : std::min(bounded, longest);
}

bool hasPassed(const Deadline& deadline) {
    return deadline && SteadyClock::now() >= *deadline;
}

/// Adds what can be read now; closes the descriptor at the end of the stream.
template <typename Keep>
void readSome(FileDescriptor& descriptor, Keep keep) {
    std::array<char, 16384> buffer;
    const auto length = ::read(descriptor.get(), buffer.data(), buffer.size());
    if (length > 0) {
        keep(buffer.data(), static_cast<std::size_t>(length));
    } else if (length == 0 || (errno != EINTR && errno != EAGAIN)) {
        descriptor.reset();
    }
}

void keepBeginning(std::string& text, const char* data, std::size_t length) {
    text.append(data, std::min(length, ChildProcesses::maximumOutput - text.size()));
}

void keepEnd(std::string& text, const char* data, std::size_t length) {
    text.append(data, length);
    if (text.size() <= ChildProcesses::errorTailLength) return;
    text.erase(0, text.size() - ChildProcesses::errorTailLength);
}

/// Reads both streams to their ends. False when the deadline came first.
bool readStreams(SpawnedChild& child, const Deadline& deadline, ChildProcessResult& result) {
    while (child.output || child.error) {
        if (hasPassed(deadline)) return false;
        // A closed stream is -1, which poll passes over.
        std::array<pollfd, 2> streams{{{child.output.get(), POLLIN, 0}, {child.error.get(), POLLIN, 0}}};
        if (::poll(streams.data(), streams.size(), timeoutUntil(deadline)) <= 0) continue;
        if (streams[0].revents != 0) {
            readSome(child.output,
                     [&](const char* data, std::size_t n) { keepBeginning(result.output, data, n); });
        }
        if (streams[1].revents != 0) {
            readSome(child.error,
                     [&](const char* data, std::size_t n) { keepEnd(result.errorTail, data, n); });
        }
    }
    return true;
}

enum class Waited { ended, stillRuns };

Waited reap(pid_t pid, int options, ChildProcessResult& result) {
    int status = 0;
    pid_t answer = 0;
    do {
        answer = ::waitpid(pid, &status, options);
    } while (answer < 0 && errno == EINTR);
    if (answer == 0) return Waited::stillRuns;
    if (answer == pid && WIFEXITED(status)) result.exitStatus = WEXITSTATUS(status);
    return Waited::ended;
}

/// A child that has closed its outputs normally ends at once; false when it outlives the deadline.
bool awaitExit(pid_t pid, const Deadline& deadline, ChildProcessResult& result) {
    if (!deadline) return reap(pid, 0, result) == Waited::ended;
    for (int pause = 1; reap(pid, WNOHANG, result) == Waited::stillRuns; pause = std::min(2 * pause, 50)) {
        if (hasPassed(deadline)) return false;
        ::poll(nullptr, 0, timeoutUntil(deadline, pause));
    }
    return true;
}

} // namespace

std::optional<ChildProcessResult> POSIXChildProcesses::run(const ChildProcessRequest& request) {
    auto child = spawn(request);
    if (!child) return std::nullopt;
    const Deadline deadline =
        request.timeLimit ? Deadline(SteadyClock::now() + *request.timeLimit) : std::nullopt;
    ChildProcessResult result;
    if (readStreams(*child, deadline, result) && awaitExit(child->pid, deadline, result)) return result;
    ::kill(-child->pid, SIGKILL);
    reap(child->pid, 0, result);
    result.exceededTimeLimit = true;
    return result;
}

} // namespace tarvo
