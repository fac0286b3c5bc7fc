#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace tarvo::linux_platform {

/// The 1-, 5- and 15-minute averages, the first three fields of /proc/loadavg; absent unless all three are
/// numbers. Format: proc(5).
std::optional<std::array<double, 3>> parseLoadAverages(std::string_view text);

} // namespace tarvo::linux_platform
