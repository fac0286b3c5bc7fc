#include "platform/linux/virtual_ticks.h"

namespace tarvo::linux_platform {

namespace {

constexpr std::uint32_t mask = 0x7FFF'FFFF;
constexpr std::uint64_t largestStep = std::uint64_t{1} << 30U;

std::uint32_t advanced(std::uint32_t ticks, std::uint64_t now, std::uint64_t before) {
    const auto step = now >= before ? now - before : 0;
    if (step > largestStep) return ticks;
    return (ticks + static_cast<std::uint32_t>(step)) & mask;
}

} // namespace

void VirtualTicks::advance(const std::vector<RawCoreTicks>& raw, std::vector<CoreTicks>& cores) {
    const auto known = positions_.size();
    positions_.resize(raw.size());
    cores.resize(raw.size());
    for (std::size_t index = 0; index < raw.size(); ++index) {
        auto& position = positions_[index];
        const bool isSameCore = index < known && position.raw.cpuId == raw[index].cpuId;
        if (isSameCore) step(position, raw[index]);
        position.raw = raw[index];
        const auto& ticks = position.virtualTicks;
        cores[index] = {static_cast<std::int32_t>(ticks[0]), static_cast<std::int32_t>(ticks[1]),
                        static_cast<std::int32_t>(ticks[2]), static_cast<std::int32_t>(ticks[3])};
    }
}

void VirtualTicks::step(Position& position, const RawCoreTicks& now) {
    auto& ticks = position.virtualTicks;
    const auto& before = position.raw;
    ticks = {advanced(ticks[0], now.user, before.user), advanced(ticks[1], now.system, before.system),
             advanced(ticks[2], now.idle, before.idle), advanced(ticks[3], now.nice, before.nice)};
}

} // namespace tarvo::linux_platform
