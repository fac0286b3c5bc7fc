#pragma once

#include "platform/posix/file_descriptor.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>

#include <fmt/format.h>

#include <stdexcept>
#include <string>

namespace tarvo {

/// Sockets on this machine's loopback, for tests that hold the kernel's tables beside what was opened.
namespace loopback {

inline void require(bool succeeded) {
    if (!succeeded) throw std::runtime_error("no loopback socket");
}

inline sockaddr_in address(std::uint16_t port = 0) {
    sockaddr_in result{};
    result.sin_family = AF_INET;
    result.sin_port = htons(port);
    result.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return result;
}

inline sockaddr_in6 address6(std::uint16_t port = 0) {
    sockaddr_in6 result{};
    result.sin6_family = AF_INET6;
    result.sin6_port = htons(port);
    result.sin6_addr = IN6ADDR_LOOPBACK_INIT;
    return result;
}

template <typename Address>
bool bind(const FileDescriptor& socket, const Address& address) {
    return ::bind(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

template <typename Address>
bool connect(const FileDescriptor& socket, const Address& address) {
    return ::connect(socket.get(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) == 0;
}

inline FileDescriptor open(int family, int type) {
    return FileDescriptor(::socket(family, type | SOCK_CLOEXEC, 0));
}

inline std::uint16_t localPort(const FileDescriptor& socket) {
    sockaddr_storage name{};
    socklen_t length = sizeof(name);
    require(::getsockname(socket.get(), reinterpret_cast<sockaddr*>(&name), &length) == 0);
    // The port stands at the same place in both families.
    return ntohs(reinterpret_cast<const sockaddr_in*>(&name)->sin_port);
}

inline FileDescriptor listener() {
    auto socket = open(AF_INET, SOCK_STREAM);
    require(bind(socket, address()) && ::listen(socket.get(), 8) == 0);
    return socket;
}

inline FileDescriptor accept(const FileDescriptor& listening) {
    FileDescriptor socket(::accept4(listening.get(), nullptr, nullptr, SOCK_CLOEXEC));
    require(static_cast<bool>(socket));
    return socket;
}

/// Sends the acknowledgement that the kernel would hold back for a while, so that the peer's counters and
/// state are settled.
inline void acknowledge(const FileDescriptor& socket) {
    const int yes = 1;
    require(::setsockopt(socket.get(), IPPROTO_TCP, TCP_QUICKACK, &yes, sizeof(yes)) == 0);
}

/// Two connected TCP sockets of this process.
struct Pair {
    FileDescriptor listening = listener();
    FileDescriptor client = open(AF_INET, SOCK_STREAM);
    FileDescriptor server = connected();

private:
    FileDescriptor connected() {
        require(connect(client, address(localPort(listening))));
        return accept(listening);
    }
};

} // namespace loopback
} // namespace tarvo
