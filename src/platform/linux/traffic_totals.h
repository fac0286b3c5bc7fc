#pragma once

#include "platform/linux/socket_record.h"

#include <cstdint>
#include <map>
#include <utility>
#include <vector>

namespace tarvo::linux_platform {

/// A process beyond the reuse of its number.
struct ProcessIdentity {
    std::int32_t pid = 0;
    std::uint64_t startTime = 0; ///< clock ticks after boot
    auto operator<=>(const ProcessIdentity&) const = default;
};

/// Counters of one socket at one moment and the process that holds it.
struct OwnedTraffic {
    std::uint64_t inode = 0;
    std::uint64_t cookie = 0;
    ProcessIdentity owner;
    SocketTraffic traffic;
};

/// Bytes by process, added up from the counters of its sockets; what a socket had moved stays with its
/// process after the socket is closed.
class TrafficTotals {
public:
    /// Adds what each socket has moved since the last call, all that it ever moved for one that was not
    /// there. The list holds every socket that is open now, each once.
    void add(const std::vector<OwnedTraffic>& sockets);

    /// Drops the processes for which `hasEnded` answers true.
    template <typename HasEnded>
    void forget(HasEnded&& hasEnded) {
        std::erase_if(processes_, [&](const auto& entry) { return hasEnded(entry.first); });
    }

    const std::map<ProcessIdentity, SocketTraffic>& processes() const { return processes_; }

private:
    using SocketIdentity = std::pair<std::uint64_t, std::uint64_t>;

    std::map<SocketIdentity, SocketTraffic> sockets_; ///< counters at the last call
    std::map<ProcessIdentity, SocketTraffic> processes_;
};

} // namespace tarvo::linux_platform
