#include "platform/linux/drm_usage.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo::linux_platform {

namespace {

// A driver may report less than before; the larger value stays until it is passed.
std::uint64_t growth(std::uint64_t& now, std::uint64_t before) {
    now = std::max(now, before);
    return now - before;
}

// Share of the time in which one engine of this kind worked for the client, 0 to about 1.
double busyShare(DRMEngine& now, const DRMEngine& before, double elapsedNanoseconds) {
    double busy = static_cast<double>(growth(now.busyNanoseconds, before.busyNanoseconds));
    double passed = elapsedNanoseconds;
    if (now.cycles && now.totalCycles && before.cycles && before.totalCycles) {
        busy = static_cast<double>(growth(*now.cycles, *before.cycles));
        passed = static_cast<double>(growth(*now.totalCycles, *before.totalCycles));
    }
    return passed > 0 ? busy / passed / static_cast<double>(now.capacity) : 0;
}

} // namespace

std::optional<double> DRMUsage::sample(const std::vector<DRMClient>& clients, SteadyTime now) {
    using Nanoseconds = std::chrono::duration<double, std::nano>;
    const auto before = std::exchange(previous_, {});
    const double elapsed = Nanoseconds(now - std::exchange(sampled_, now)).count();

    bool isKnown = false;
    std::map<std::string, double> shares;
    for (const auto& client : clients) {
        const auto [position, isNew] = previous_.emplace(client.id, client.engines);
        if (!isNew) continue; // another descriptor of the same client
        const auto known = before.find(client.id);
        if (known == before.end()) continue;
        isKnown = true;
        for (auto& [name, engine] : position->second) {
            const auto earlier = known->second.find(name);
            if (earlier != known->second.end()) shares[name] += busyShare(engine, earlier->second, elapsed);
        }
    }
    if (!isKnown) return std::nullopt;
    double busiest = 0;
    for (const auto& [name, share] : shares)
        busiest = std::max(busiest, share);
    return std::min(busiest * 100, 100.0);
}

} // namespace tarvo::linux_platform
