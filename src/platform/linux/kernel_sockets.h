#pragma once

#include "platform/linux/root.h"
#include "platform/linux/socket_diag.h"
#include "platform/linux/socket_record.h"

namespace tarvo::linux_platform {

/// The machine's socket tables: over netlink on the running machine, and from /proc/net where the kernel does
/// not answer there and for a recorded machine. The files count no traffic.
class KernelSockets : public SocketSource {
public:
    explicit KernelSockets(Root root) : root_(std::move(root)) {}

    void list(std::vector<SocketRecord>& sockets) override;
    void listTraffic(std::vector<SocketRecord>& sockets) override;

private:
    void append(const SocketDiagQuery& query, std::vector<SocketRecord>& sockets);
    void appendFromFile(const SocketDiagQuery& query, std::vector<SocketRecord>& sockets) const;

    Root root_;
    SocketDiag netlink_;
};

} // namespace tarvo::linux_platform
