#include "platform/linux/socket_diag.h"

#include <linux/netlink.h>
#include <sys/socket.h>
#include <sys/time.h>

#include <cerrno>

namespace tarvo::linux_platform {

namespace {

// The kernel fills batches up to the size that is received with, at most 32 KiB.
constexpr std::size_t batchSize = 65536;
constexpr timeval longestSilence{2, 0};

} // namespace

bool SocketDiag::append(SocketDiagQuery query, std::vector<SocketRecord>& sockets) {
    query.sequence = ++sequence_;
    const auto before = sockets.size();
    auto progress = isOpen() && send(query) ? SocketDiagProgress::more : SocketDiagProgress::failed;
    std::vector<std::byte> buffer(batchSize);
    while (progress == SocketDiagProgress::more)
        progress = receive(query, buffer, sockets);
    if (progress == SocketDiagProgress::done) return true;
    // An unfinished answer must not reach the next question.
    netlink_.reset();
    sockets.resize(before);
    return false;
}

bool SocketDiag::isOpen() {
    if (netlink_) return true;
    netlink_ = FileDescriptor(::socket(AF_NETLINK, SOCK_RAW | SOCK_CLOEXEC, NETLINK_SOCK_DIAG));
    if (!netlink_) return false;
    ::setsockopt(netlink_.get(), SOL_SOCKET, SO_RCVTIMEO, &longestSilence, sizeof(longestSilence));
    return true;
}

bool SocketDiag::send(const SocketDiagQuery& query) {
    const auto request = socketDiagRequest(query);
    return ::send(netlink_.get(), request.data(), request.size(), 0) == static_cast<ssize_t>(request.size());
}

SocketDiagProgress SocketDiag::receive(const SocketDiagQuery& query, std::span<std::byte> buffer,
                                       std::vector<SocketRecord>& sockets) {
    for (;;) {
        const auto length = ::recv(netlink_.get(), buffer.data(), buffer.size(), MSG_TRUNC);
        if (length < 0 && errno == EINTR) continue;
        if (length <= 0 || static_cast<std::size_t>(length) > buffer.size())
            return SocketDiagProgress::failed;
        return parseSocketDiagMessages(buffer.first(static_cast<std::size_t>(length)), query, sockets);
    }
}

} // namespace tarvo::linux_platform
