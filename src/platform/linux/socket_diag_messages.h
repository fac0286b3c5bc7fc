#pragma once

#include "platform/linux/socket_record.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tarvo::linux_platform {

/// What of the kernel's socket tables is asked for (sock_diag(7)).
struct SocketDiagQuery {
    SocketFamily family = SocketFamily::ipv4;
    SocketProtocol protocol = SocketProtocol::tcp;
    bool onlyWithTraffic = false; ///< those that can have moved bytes, with their counters
    std::uint32_t sequence = 0;   ///< number that the answers carry
};

/// The request as bytes for the netlink socket.
std::vector<std::byte> socketDiagRequest(const SocketDiagQuery& query);

enum class SocketDiagProgress {
    more,  ///< further messages follow
    done,  ///< the list is complete
    failed ///< the kernel refused, or the bytes are none of its messages
};

/// Appends the sockets of one received batch of messages. Messages with another sequence number are passed
/// over.
SocketDiagProgress parseSocketDiagMessages(std::span<const std::byte> batch, const SocketDiagQuery& query,
                                           std::vector<SocketRecord>& sockets);

} // namespace tarvo::linux_platform
