#include "platform/linux/linux_socket_table.h"

#include "platform/linux/inode_index.h"
#include "platform/linux/process_command.h"
#include "platform/linux/read_file.h"
#include "platform/linux/socket_endpoint.h"

#include <fmt/format.h>

#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace tarvo::linux_platform {

namespace {

SocketRow rowOf(const SocketRecord& socket, const SocketOwner& owner, const std::string& process) {
    SocketRow row;
    row.process = process;
    row.pid = owner.pid;
    row.localAddress = endpointText(socket.family, socket.local);
    if (socket.remote.port != 0) row.remoteAddress = endpointText(socket.family, socket.remote);
    if (socket.protocol == SocketProtocol::udp) {
        row.protocol = "UDP";
        return row;
    }
    row.protocol = "TCP";
    if (const auto state = socketStateName(socket.state)) row.state = *state;
    return row;
}

} // namespace

LinuxSocketTable::LinuxSocketTable(const Root& root, std::unique_ptr<SocketSource> sockets)
    : processes_(root.path("/proc")), sockets_(std::move(sockets)), owners_(root) {}

std::vector<SocketRow> LinuxSocketTable::rows() {
    const std::lock_guard lock(mutex_);
    std::vector<SocketRecord> sockets;
    sockets_->list(sockets);
    std::vector<SocketOwner> owners;
    owners_.list(owners);

    const InodeIndex index(sockets);
    std::vector<SocketRow> rows;
    std::int32_t namedPid = 0;
    std::string name;
    for (const auto& owner : owners) {
        const auto* const socket = index.find(owner.inode);
        if (socket == nullptr) continue;
        if (owner.pid != std::exchange(namedPid, owner.pid)) name = nameOf(owner.pid);
        rows.push_back(rowOf(*socket, owner, name));
    }
    return rows;
}

std::string LinuxSocketTable::nameOf(std::int32_t pid) const {
    const auto text = readAttribute(fmt::format("{}/{}/comm", processes_, pid));
    return printableName(text.value_or(""));
}

} // namespace tarvo::linux_platform
