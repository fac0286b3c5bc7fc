#include "readers/cpu_monitor.h"

#include "readers/checked_arithmetic.h"

#include <algorithm>

namespace tarvo {

namespace {

struct Elapsed {
    std::int64_t idle = 0;
    std::int64_t total = 0;
};

Elapsed elapsed(const CoreTicks& now, const CoreTicks& before) {
    const auto since = [](std::int32_t later, std::int32_t earlier) {
        return std::int64_t{checkedDifference(later, earlier, "core ticks")};
    };
    const auto idle = since(now.idle, before.idle);
    return {idle, since(now.user, before.user) + since(now.system, before.system) + idle +
                      since(now.nice, before.nice)};
}

double busyPercent(const Elapsed& ticks) {
    if (ticks.total <= 0) return 0;
    const double busy = (1 - static_cast<double>(ticks.idle) / static_cast<double>(ticks.total)) * 100;
    return std::clamp(busy, 0.0, 100.0);
}

} // namespace

const CPUUsage& CPUMonitor::usage() {
    usage_.total = 0;
    usage_.perCore.clear();
    if (!host_.processorLoad(current_)) return usage_;

    if (current_.size() == previous_.size()) {
        Elapsed all;
        for (std::size_t core = 0; core < current_.size(); ++core) {
            const auto ticks = elapsed(current_[core], previous_[core]);
            usage_.perCore.push_back(busyPercent(ticks));
            all.idle += ticks.idle;
            all.total += ticks.total;
        }
        usage_.total = busyPercent(all);
    }
    previous_.swap(current_);
    return usage_;
}

} // namespace tarvo
