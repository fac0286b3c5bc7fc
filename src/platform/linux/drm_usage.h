#pragma once

#include "platform/clock.h"
#include "platform/linux/drm_fdinfo.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace tarvo::linux_platform {

/// Use of one card between two looks at its clients, from what they say of themselves.
class DRMUsage {
public:
    /// Busy share of the busiest kind of engine since the last call, percent 0 to 100. Absent at the first
    /// call and while no client was there before: nothing is known of the others then.
    std::optional<double> sample(const std::vector<DRMClient>& clients, SteadyTime now);

private:
    using Engines = std::map<std::string, DRMEngine>;

    std::map<std::uint64_t, Engines> previous_; ///< by the client's number
    SteadyTime sampled_;
};

} // namespace tarvo::linux_platform
