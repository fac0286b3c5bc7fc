#include "platform/linux/process_control.h"

#include "platform/linux/process_stat.h"
#include "platform/linux/read_file.h"
#include "platform/posix/file_descriptor.h"

#include <fmt/format.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
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

} // namespace

LinuxProcessControl::LinuxProcessControl(const Root& root, ListedStartTime listed)
    : processes_(root.path("/proc")), listed_(std::move(listed)) {}

bool LinuxProcessControl::terminate(std::int32_t pid) {
    // 0 and below would address groups of processes, 1 is the system itself.
    if (pid <= 1) return false;
    const auto process = openProcess(pid);
    const bool hasNoDescriptors = !process && errno == ENOSYS;
    if ((!process && !hasNoDescriptors) || !isAsListed(pid)) return false;
    return hasNoDescriptors ? ::kill(pid, SIGTERM) == 0 : sendTo(process, SIGTERM);
}

bool LinuxProcessControl::isAsListed(std::int32_t pid) const {
    const auto listed = listed_(pid);
    if (!listed) return true;
    const auto text = readFile(fmt::format("{}/{}/stat", processes_, pid));
    const auto stat = text ? parseProcessStat(*text) : std::nullopt;
    return stat && stat->startTime == *listed;
}

} // namespace tarvo::linux_platform
