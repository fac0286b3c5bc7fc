#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// One internet socket as one descriptor of one process holds it: what the open-files tool prints in a line.
struct SocketRow {
    std::string process; ///< command name
    std::int32_t pid = 0;
    std::string protocol;                     ///< "TCP" or "UDP"
    std::string localAddress;                 ///< host:port, numeric; "*" for any host or any port
    std::optional<std::string> remoteAddress; ///< absent when the socket has no peer
    std::optional<std::string> state;         ///< e.g. "ESTABLISHED"; absent for a protocol without states
    bool operator==(const SocketRow&) const = default;
};

/// The open internet sockets whose owner is known, on a platform that answers records. Any thread but the
/// main one.
class SocketTable {
public:
    virtual ~SocketTable() = default;
    /// By pid, then descriptor. Empty when the sockets cannot be listed.
    virtual std::vector<SocketRow> rows() = 0;
};

/// Bytes that one process has moved over the network.
struct TrafficRow {
    std::string process;
    std::uint64_t bytesIn = 0;
    std::uint64_t bytesOut = 0;
    bool operator==(const TrafficRow&) const = default;
};

/// Network bytes by process, on a platform that answers records. Any thread but the main one.
class ProcessTraffic {
public:
    virtual ~ProcessTraffic() = default;
    /// Takes a sample now. In no order of size; processes that moved nothing may be among them.
    virtual std::vector<TrafficRow> rows() = 0;
};

} // namespace tarvo
