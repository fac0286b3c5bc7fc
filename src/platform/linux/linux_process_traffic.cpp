#include "platform/linux/linux_process_traffic.h"

#include "platform/linux/folder.h"
#include "platform/linux/inode_index.h"
#include "platform/linux/process_command.h"
#include "platform/linux/process_stat.h"
#include "platform/linux/read_file.h"
#include "platform/posix/file_descriptor.h"

#include <fcntl.h>
#include <fmt/format.h>

#include <string_view>
#include <unordered_set>
#include <utility>

namespace tarvo::linux_platform {

namespace {

/// A path loses its folders; a bare name is kept whole.
std::string nameOfCommand(std::string command) {
    if (!command.starts_with('/')) return command;
    return std::string(lastComponent(command));
}

} // namespace

LinuxProcessTraffic::LinuxProcessTraffic(const Root& root, std::unique_ptr<SocketSource> sockets)
    : processes_(root.path("/proc")), sockets_(std::move(sockets)), owners_(root) {}

std::vector<TrafficRow> LinuxProcessTraffic::rows() {
    const std::lock_guard lock(mutex_);
    totals_.add(sample());
    totals_.forget([this](const ProcessIdentity& process) { return identify(process.pid) != process; });

    std::vector<TrafficRow> rows;
    const FileDescriptor folder(::open(processes_.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    for (const auto& [process, total] : totals_.processes()) {
        const auto text = stat(process.pid);
        const auto parsed = text ? parseProcessStat(*text) : std::nullopt;
        if (!parsed) continue;
        rows.push_back({nameOfCommand(processCommand(folder.get(), process.pid, parsed->name)),
                        total.received, total.sent});
    }
    return rows;
}

std::vector<OwnedTraffic> LinuxProcessTraffic::sample() {
    std::vector<SocketRecord> sockets;
    sockets_->listTraffic(sockets);
    std::vector<SocketOwner> owners;
    if (!sockets.empty()) owners_.list(owners);

    const InodeIndex index(sockets);
    std::unordered_set<std::uint64_t> counted;
    std::vector<OwnedTraffic> result;
    std::optional<ProcessIdentity> process;
    for (const auto& owner : owners) {
        const auto* const socket = index.find(owner.inode);
        if (socket == nullptr || !socket->traffic || !counted.insert(owner.inode).second) continue;
        if (!process || process->pid != owner.pid) process = identify(owner.pid);
        if (process) result.push_back({socket->inode, socket->cookie, *process, *socket->traffic});
    }
    return result;
}

std::optional<std::string> LinuxProcessTraffic::stat(std::int32_t pid) const {
    return readFile(fmt::format("{}/{}/stat", processes_, pid));
}

std::optional<ProcessIdentity> LinuxProcessTraffic::identify(std::int32_t pid) const {
    const auto text = stat(pid);
    const auto parsed = text ? parseProcessStat(*text) : std::nullopt;
    if (!parsed) return std::nullopt;
    return ProcessIdentity{pid, parsed->startTime};
}

} // namespace tarvo::linux_platform
