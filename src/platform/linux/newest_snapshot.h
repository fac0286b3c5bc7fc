#pragma once

#include "platform/clock.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::linux_platform {

/// The latest moment that the names in a folder tell by a pattern of local_time.h; names of another form are
/// passed over. `ignoredTail` characters may follow the pattern. Absent when there is none.
std::optional<WallTime> newestSnapshot(const std::string& folder, std::string_view pattern,
                                       std::size_t ignoredTail = 0);

} // namespace tarvo::linux_platform
