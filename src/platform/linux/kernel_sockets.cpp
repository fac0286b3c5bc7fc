#include "platform/linux/kernel_sockets.h"

#include "platform/linux/read_file.h"
#include "platform/linux/socket_table_text.h"

#include <bit>

namespace tarvo::linux_platform {

namespace {

// About 150 bytes a socket: room for a million.
constexpr std::size_t longestTable = 256U << 20U;

const char* fileOf(const SocketDiagQuery& query) {
    if (query.family == SocketFamily::ipv4)
        return query.protocol == SocketProtocol::tcp ? "/proc/net/tcp" : "/proc/net/udp";
    return query.protocol == SocketProtocol::tcp ? "/proc/net/tcp6" : "/proc/net/udp6";
}

} // namespace

void KernelSockets::list(std::vector<SocketRecord>& sockets) {
    sockets.clear();
    for (const auto family : {SocketFamily::ipv4, SocketFamily::ipv6}) {
        for (const auto protocol : {SocketProtocol::tcp, SocketProtocol::udp})
            append({family, protocol}, sockets);
    }
}

void KernelSockets::listTraffic(std::vector<SocketRecord>& sockets) {
    sockets.clear();
    if (!root_.isLive()) return;
    for (const auto family : {SocketFamily::ipv4, SocketFamily::ipv6})
        netlink_.append({family, SocketProtocol::tcp, true}, sockets);
}

void KernelSockets::append(const SocketDiagQuery& query, std::vector<SocketRecord>& sockets) {
    if (root_.isLive() && netlink_.append(query, sockets)) return;
    appendFromFile(query, sockets);
}

void KernelSockets::appendFromFile(const SocketDiagQuery& query, std::vector<SocketRecord>& sockets) const {
    const auto text = readFile(root_.path(fileOf(query)), longestTable);
    if (text) parseSocketTableText(*text, query.family, query.protocol, std::endian::native, sockets);
}

} // namespace tarvo::linux_platform
