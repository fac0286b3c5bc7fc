#include "platform/linux/process_scanner.h"

#include "platform/linux/process_stat.h"
#include "platform/linux/text_cursor.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <limits>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t longestPid = 10;
constexpr std::string_view statFile = "/stat";
constexpr std::size_t beginningOfMemoryInfo = 64;
constexpr std::uint64_t bytesPerKilobyte = 1024;

bool isBefore(const ScannedProcess& left, const ScannedProcess& right) {
    return left.pid < right.pid;
}

} // namespace

ProcessScanner::ProcessScanner(const Root& root)
    : path_(root.path("/proc")), memoryInfo_(path_ + "/meminfo") {}

bool ProcessScanner::scan(ProcessScan& scan) {
    scan.processes.clear();
    scan.names.clear();
    scan.physicalBytes = physicalBytes();
    if (!folder_) folder_ = FileDescriptor(::open(path_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (!folder_ || !entries_.forEach(folder_.get(), [&](const auto& entry) { addProcess(entry, scan); })) {
        folder_.reset();
        scan.processes.clear();
        return false;
    }
    // The kernel lists them in order; the folder of a recorded machine need not.
    if (!std::is_sorted(scan.processes.begin(), scan.processes.end(), isBefore))
        std::sort(scan.processes.begin(), scan.processes.end(), isBefore);
    return true;
}

void ProcessScanner::addProcess(const NumberedEntry& entry, ProcessScan& scan) {
    const auto stat = parseProcessStat(readStat(entry.name));
    if (!stat || stat->isZombie()) return;
    const auto name = stat->name.substr(0, std::numeric_limits<std::uint8_t>::max());
    scan.processes.push_back({entry.number, static_cast<std::uint32_t>(scan.names.size()),
                              static_cast<std::uint8_t>(name.size()), stat->isKernelThread, stat->startTime,
                              stat->ticks, stat->residentPages});
    scan.names.insert(scan.names.end(), name.begin(), name.end());
}

std::string_view ProcessScanner::readStat(std::string_view pid) {
    if (pid.size() > longestPid) return {};
    std::array<char, longestPid + statFile.size() + 1> name{};
    std::copy(statFile.begin(), statFile.end(), std::copy(pid.begin(), pid.end(), name.begin()));
    const FileDescriptor file(
        ::openat(folder_.get(), name.data(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (!file) return {};
    const auto length = ::read(file.get(), buffer_.data(), buffer_.size());
    if (length <= 0) return {};
    return {buffer_.data(), static_cast<std::size_t>(length)};
}

std::uint64_t ProcessScanner::physicalBytes() {
    const auto text = memoryInfo_.readBeginning(beginningOfMemoryInfo);
    if (!text) return 0;
    TextCursor cursor(*text);
    if (!cursor.skip("MemTotal:")) return 0;
    return cursor.number().value_or(0) * bytesPerKilobyte;
}

} // namespace tarvo::linux_platform
