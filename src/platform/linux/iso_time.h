#pragma once

#include "platform/clock.h"

#include <optional>
#include <string_view>

namespace tarvo::linux_platform {

/// "2025-07-15T12:00:00" with an optional fraction of a second, which is dropped, and an optional zone: "Z",
/// "+02",
/// "+0200" or "+02:00"; without one the local zone's. Absent for anything else. Format: ISO 8601.
std::optional<WallTime> parseISOTime(std::string_view text);

} // namespace tarvo::linux_platform
