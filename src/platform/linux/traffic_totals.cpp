#include "platform/linux/traffic_totals.h"

namespace tarvo::linux_platform {

namespace {

std::uint64_t growth(std::uint64_t before, std::uint64_t now) {
    return now > before ? now - before : 0;
}

} // namespace

void TrafficTotals::add(const std::vector<OwnedTraffic>& sockets) {
    std::map<SocketIdentity, SocketTraffic> open;
    for (const auto& socket : sockets) {
        const SocketIdentity identity(socket.inode, socket.cookie);
        const auto known = sockets_.find(identity);
        const auto before = known == sockets_.end() ? SocketTraffic{} : known->second;
        auto& total = processes_[socket.owner];
        total.received += growth(before.received, socket.traffic.received);
        total.sent += growth(before.sent, socket.traffic.sent);
        open.emplace(identity, socket.traffic);
    }
    sockets_ = std::move(open);
}

} // namespace tarvo::linux_platform
