#include "platform/posix/posix_child_processes.h"

#include "platform/posix/child_end.h"
#include "platform/posix/lasting_child.h"
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
bool readStreams(SpawnedChild& child, const ChildDeadline& deadline, ChildProcessResult& result) {
    while (child.output || child.error) {
        if (hasPassed(deadline)) return false;
        // A closed stream is -1, which poll passes over.
        std::array<pollfd, 2> streams{{{child.output.get(), POLLIN, 0}, {child.error.get(), POLLIN, 0}}};
        if (::poll(streams.data(), streams.size(), millisecondsUntil(deadline)) <= 0) continue;
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

/// A child that has closed its outputs normally ends at once; false when it outlives the deadline.
bool awaitExit(pid_t pid, const ChildDeadline& deadline, ChildProcessResult& result) {
    if (!deadline) return reapChild(pid, 0, result);
    for (int pause = 1; !reapChild(pid, WNOHANG, result); pause = std::min(2 * pause, 50)) {
        if (hasPassed(deadline)) return false;
        ::poll(nullptr, 0, millisecondsUntil(deadline, pause));
    }
    return true;
}

ChildDeadline deadlineOf(const ChildProcessRequest& request) {
    if (!request.timeLimit) return std::nullopt;
    return std::chrono::steady_clock::now() + *request.timeLimit;
}

std::optional<ChildProcessResult> runLasting(const ChildProcessRequest& request) {
    ErrorFile errors;
    const auto pid = errors ? spawnLasting(request, errors.descriptor()) : std::nullopt;
    if (!pid) return std::nullopt;
    return awaitLastingChild(*pid, errors, deadlineOf(request));
}

} // namespace

std::optional<ChildProcessResult> POSIXChildProcesses::run(const ChildProcessRequest& request) {
    if (request.mayGoOn) return runLasting(request);
    auto child = spawn(request);
    if (!child) return std::nullopt;
    const ChildDeadline deadline = deadlineOf(request);
    ChildProcessResult result;
    if (readStreams(*child, deadline, result) && awaitExit(child->pid, deadline, result)) return result;
    ::kill(-child->pid, SIGKILL);
    reapChild(child->pid, 0, result);
    result.exceededTimeLimit = true;
    return result;
}

} // namespace tarvo
