#pragma once

#include "platform/linux/socket_diag_messages.h"
#include "platform/posix/file_descriptor.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace tarvo::linux_platform {

/// Asks the running kernel for its socket tables over netlink; open to every user. For one thread.
class SocketDiag {
public:
    /// Appends what is asked for; the query's sequence number is set here. False, and nothing appended, when
    /// the kernel does not answer that.
    bool append(SocketDiagQuery query, std::vector<SocketRecord>& sockets);

private:
    bool isOpen();
    bool send(const SocketDiagQuery& query);
    SocketDiagProgress receive(const SocketDiagQuery& query, std::span<std::byte> buffer,
                               std::vector<SocketRecord>& sockets);

    FileDescriptor netlink_;
    std::uint32_t sequence_ = 0;
};

} // namespace tarvo::linux_platform
