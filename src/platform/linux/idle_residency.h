#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>

namespace tarvo::linux_platform {

/// Awake share of a GPU between two looks at the time that its parts slept. An upper bound of its use: a part
/// can be awake without work.
class IdleResidency {
public:
    /// Milliseconds slept so far by part. Awake share of the most awake part since the last call, percent 0
    /// to 100; absent at the first call and without parts.
    std::optional<double> sample(const std::map<std::string, std::uint64_t>& slept, SteadyTime now);

private:
    std::map<std::string, std::uint64_t> previous_;
    SteadyTime sampled_;
};

} // namespace tarvo::linux_platform
