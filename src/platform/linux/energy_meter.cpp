#include "platform/linux/energy_meter.h"

#include <utility>

namespace tarvo::linux_platform {
namespace {

constexpr std::chrono::minutes surelyWithinOneRange{5};

} // namespace

std::optional<double> EnergyMeter::watts(std::uint64_t microjoules, SteadyTime now) {
    const auto previous = std::exchange(previous_, Reading{microjoules, now});
    if (!previous) return std::nullopt;
    const Seconds elapsed = now - previous->at;
    if (elapsed.count() <= 0 || elapsed > surelyWithinOneRange) return std::nullopt;
    auto used = microjoules - previous->microjoules;
    if (microjoules < previous->microjoules) {
        if (range_ < previous->microjoules) return std::nullopt;
        used = range_ - previous->microjoules + microjoules;
    }
    return static_cast<double>(used) / 1e6 / elapsed.count();
}

} // namespace tarvo::linux_platform
