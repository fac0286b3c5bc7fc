#include "platform/linux/process_control.h"

#include "platform/linux/process_stat.h"
#include "platform/linux/read_file.h"
#include "platform/posix/file_descriptor.h"

#include <fmt/format.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <memory>
#include <utility>

namespace tarvo::linux_platform {

namespace {

// The C library of the oldest systems that the program runs on has no wrappers for these two.
FileDescriptor openProcess(std::int32_t pid) {
    return FileDescriptor(static_cast<int>(::syscall(SYS_pidfd_open, pid, 0)));
}

bool sendTo(const FileDescriptor& process, int signal) {
    return ::syscall(SYS_pidfd_send_signal, process.get(), signal, nullptr, 0) == 0;
}

bool hasProcessDescriptors() {
    return static_cast<bool>(openProcess(::getpid())) || errno != ENOSYS;
}

std::optional<std::uint64_t> startTimeOf(const std::string& processes, std::int32_t pid) {
    const auto text = readFile(fmt::format("{}/{}/stat", processes, pid));
    const auto stat = text ? parseProcessStat(*text) : std::nullopt;
    return stat ? std::optional(stat->startTime) : std::nullopt;
}

bool nothing() {
    return false;
}

} // namespace

LinuxProcessControl::LinuxProcessControl(const Root& root, ListedStartTime listed)
    : isLive_(root.isLive()), processes_(root.path("/proc")), listed_(std::move(listed)) {}

ProcessControl::Terminate LinuxProcessControl::terminator(std::int32_t pid) {
    // 0 and below would address groups of processes, 1 is the system itself.
    if (pid <= 1 || !isLive_) return nothing;
    return hasProcessDescriptors() ? byDescriptor(pid) : byNumber(pid);
}

ProcessControl::Terminate LinuxProcessControl::byDescriptor(std::int32_t pid) const {
    const auto process = std::make_shared<const FileDescriptor>(openProcess(pid));
    // The descriptor first: what is checked then is what it stands for.
    if (!*process || !isAsListed(pid)) return nothing;
    return [process] { return sendTo(*process, SIGTERM); };
}

ProcessControl::Terminate LinuxProcessControl::byNumber(std::int32_t pid) const {
    const auto listed = startTimeOf(processes_, pid);
    if (!listed || !isAsListed(pid)) return nothing;
    return [processes = processes_, pid, listed] {
        return startTimeOf(processes, pid) == listed && ::kill(pid, SIGTERM) == 0;
    };
}

bool LinuxProcessControl::isAsListed(std::int32_t pid) const {
    const auto listed = listed_(pid);
    return !listed || startTimeOf(processes_, pid) == listed;
}

} // namespace tarvo::linux_platform
