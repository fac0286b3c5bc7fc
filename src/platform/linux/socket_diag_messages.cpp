#include "platform/linux/socket_diag_messages.h"

#include <arpa/inet.h>
#include <linux/inet_diag.h>
#include <linux/netlink.h>
#include <linux/rtnetlink.h>
#include <linux/sock_diag.h>
#include <linux/tcp.h>
#include <netinet/in.h>
#include <sys/socket.h>

#include <cstring>
#include <optional>

namespace tarvo::linux_platform {

namespace {

using Bytes = std::span<const std::byte>;

struct Request {
    nlmsghdr header;
    inet_diag_req_v2 body;
};

constexpr std::uint32_t allStates = ~0U;
// Numbers of linux/tcp_states.h: sockets in these states belong to no process or have no connection yet.
constexpr std::uint32_t statesWithoutTraffic = 1U << 6U | 1U << 7U | 1U << 10U | 1U << 12U;

// The kernel makes the structure longer from version to version and never moves a field.
constexpr std::size_t ackedOffset = 120;
constexpr std::size_t receivedOffset = 128;
constexpr std::size_t sentOffset = 200;
constexpr std::size_t sentAgainOffset = 208;
static_assert(offsetof(tcp_info, tcpi_bytes_acked) == ackedOffset);
static_assert(offsetof(tcp_info, tcpi_bytes_received) == receivedOffset);
static_assert(offsetof(tcp_info, tcpi_bytes_sent) == sentOffset);
static_assert(offsetof(tcp_info, tcpi_bytes_retrans) == sentAgainOffset);

/// Copies a structure out of bytes that need not be aligned for it; absent when there are too few.
template <typename Structure>
std::optional<Structure> copyOf(Bytes bytes, std::size_t offset = 0) {
    if (bytes.size() < offset + sizeof(Structure)) return std::nullopt;
    Structure structure;
    std::memcpy(&structure, bytes.data() + offset, sizeof(structure));
    return structure;
}

std::size_t padded(std::size_t length) {
    return (length + 3U) & ~std::size_t{3};
}

Bytes after(Bytes bytes, std::size_t length) {
    return bytes.subspan(std::min(padded(length), bytes.size()));
}

/// Payload sent, each byte once. Before Linux 4.19 only acknowledged bytes are counted, to which the side
/// that opened the connection adds one for the opening; taking it off on both sides is wrong by one byte on
/// the other.
std::optional<std::uint64_t> sentBytes(Bytes info) {
    const auto sent = copyOf<std::uint64_t>(info, sentOffset);
    const auto sentAgain = copyOf<std::uint64_t>(info, sentAgainOffset);
    if (sent && sentAgain) return *sent > *sentAgain ? *sent - *sentAgain : 0;
    const auto acked = copyOf<std::uint64_t>(info, ackedOffset);
    if (!acked) return std::nullopt;
    return *acked > 0 ? *acked - 1 : 0;
}

/// The counters of a tcp_info as long as this kernel makes it; absent in those before Linux 4.2.
std::optional<SocketTraffic> trafficOf(Bytes info) {
    const auto received = copyOf<std::uint64_t>(info, receivedOffset);
    const auto sent = sentBytes(info);
    if (!received || !sent) return std::nullopt;
    return SocketTraffic{*received, *sent};
}

std::optional<SocketTraffic> findTraffic(Bytes attributes) {
    while (const auto attribute = copyOf<rtattr>(attributes)) {
        if (attribute->rta_len < sizeof(rtattr) || attribute->rta_len > attributes.size()) break;
        if (attribute->rta_type == INET_DIAG_INFO)
            return trafficOf(attributes.subspan(sizeof(rtattr), attribute->rta_len - sizeof(rtattr)));
        attributes = after(attributes, attribute->rta_len);
    }
    return std::nullopt;
}

SocketAddress addressOf(const std::uint32_t (&words)[4], std::uint16_t port, SocketFamily family) {
    SocketAddress address;
    std::memcpy(address.bytes.data(), words, family == SocketFamily::ipv4 ? 4 : sizeof(words));
    address.port = ntohs(port);
    return address;
}

void addSocket(Bytes payload, const SocketDiagQuery& query, std::vector<SocketRecord>& sockets) {
    const auto message = copyOf<inet_diag_msg>(payload);
    if (!message) return;
    const auto family = message->idiag_family == AF_INET6 ? SocketFamily::ipv6 : SocketFamily::ipv4;
    auto& socket = sockets.emplace_back();
    socket.family = family;
    socket.protocol = query.protocol;
    socket.state = message->idiag_state;
    socket.local = addressOf(message->id.idiag_src, message->id.idiag_sport, family);
    socket.remote = addressOf(message->id.idiag_dst, message->id.idiag_dport, family);
    socket.inode = message->idiag_inode;
    socket.cookie = std::uint64_t{message->id.idiag_cookie[1]} << 32U | message->id.idiag_cookie[0];
    if (query.onlyWithTraffic) socket.traffic = findTraffic(after(payload, sizeof(inet_diag_msg)));
}

} // namespace

std::vector<std::byte> socketDiagRequest(const SocketDiagQuery& query) {
    Request request{};
    request.header.nlmsg_len = sizeof(request);
    request.header.nlmsg_type = SOCK_DIAG_BY_FAMILY;
    request.header.nlmsg_flags = NLM_F_REQUEST | NLM_F_DUMP;
    request.header.nlmsg_seq = query.sequence;
    request.body.sdiag_family = query.family == SocketFamily::ipv4 ? AF_INET : AF_INET6;
    request.body.sdiag_protocol = query.protocol == SocketProtocol::tcp ? IPPROTO_TCP : IPPROTO_UDP;
    request.body.idiag_states = query.onlyWithTraffic ? allStates & ~statesWithoutTraffic : allStates;
    if (query.onlyWithTraffic) request.body.idiag_ext = 1U << (INET_DIAG_INFO - 1U);
    std::vector<std::byte> bytes(sizeof(request));
    std::memcpy(bytes.data(), &request, sizeof(request));
    return bytes;
}

SocketDiagProgress parseSocketDiagMessages(Bytes batch, const SocketDiagQuery& query,
                                           std::vector<SocketRecord>& sockets) {
    while (!batch.empty()) {
        const auto header = copyOf<nlmsghdr>(batch);
        if (!header || header->nlmsg_len < sizeof(nlmsghdr) || header->nlmsg_len > batch.size())
            return SocketDiagProgress::failed;
        if (header->nlmsg_seq == query.sequence) {
            if (header->nlmsg_type == NLMSG_DONE) return SocketDiagProgress::done;
            if (header->nlmsg_type == NLMSG_ERROR) return SocketDiagProgress::failed;
            if (header->nlmsg_type == SOCK_DIAG_BY_FAMILY)
                addSocket(batch.subspan(sizeof(nlmsghdr), header->nlmsg_len - sizeof(nlmsghdr)), query,
                          sockets);
        }
        batch = after(batch, header->nlmsg_len);
    }
    return SocketDiagProgress::more;
}

} // namespace tarvo::linux_platform
