#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace tarvo::linux_platform {

enum class SocketFamily : std::uint8_t { ipv4, ipv6 };
enum class SocketProtocol : std::uint8_t { tcp, udp };

/// Address and port of one end of a socket.
struct SocketAddress {
    std::array<std::uint8_t, 16> bytes{}; ///< network order; an IPv4 address in the first four
    std::uint16_t port = 0;
    bool operator==(const SocketAddress&) const = default;
};

/// Bytes of payload that a TCP socket has moved.
struct SocketTraffic {
    std::uint64_t received = 0;
    std::uint64_t sent = 0;
    bool operator==(const SocketTraffic&) const = default;
};

/// One internet socket as the kernel lists it.
struct SocketRecord {
    SocketFamily family = SocketFamily::ipv4;
    SocketProtocol protocol = SocketProtocol::tcp;
    std::uint8_t state = 0; ///< number of the kernel's TCP state
    SocketAddress local;
    SocketAddress remote;
    std::uint64_t inode = 0;  ///< 0 while no process holds the socket
    std::uint64_t cookie = 0; ///< with the inode the identity of the socket; 0 where the source has none
    std::optional<SocketTraffic> traffic;
    bool operator==(const SocketRecord&) const = default;
};

/// Where socket records come from. For one thread.
class SocketSource {
public:
    virtual ~SocketSource() = default;
    /// Replaces the list by all TCP and UDP sockets of the machine, without traffic. What cannot be listed is
    /// missing.
    virtual void list(std::vector<SocketRecord>& sockets) = 0;
    /// Replaces the list by the TCP sockets that can have moved bytes, with traffic where the kernel counts
    /// it.
    virtual void listTraffic(std::vector<SocketRecord>& sockets) = 0;
};

} // namespace tarvo::linux_platform
