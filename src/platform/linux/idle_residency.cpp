#include "platform/linux/idle_residency.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace tarvo::linux_platform {

std::optional<double> IdleResidency::sample(const std::map<std::string, std::uint64_t>& slept,
                                            SteadyTime now) {
    const auto before = std::exchange(previous_, slept);
    const double elapsed =
        std::chrono::duration<double, std::milli>(now - std::exchange(sampled_, now)).count();
    std::optional<double> mostAwake;
    for (const auto& [part, milliseconds] : slept) {
        const auto earlier = before.find(part);
        if (earlier == before.end() || elapsed <= 0) continue;
        const auto asleep = static_cast<double>(milliseconds - std::min(milliseconds, earlier->second));
        const double awake = std::clamp(100 - asleep / elapsed * 100, 0.0, 100.0);
        mostAwake = std::max(mostAwake.value_or(0), awake);
    }
    return mostAwake;
}

} // namespace tarvo::linux_platform
