#pragma once

#include "platform/clock.h"

#include <optional>
#include <string_view>

namespace tarvo {

/// A moment written as date and time of the local time zone, by a pattern such as "yyyy-MM-dd-HHmmss": the
/// letters y, M, d, H, m and s stand for one digit each, everything else for itself. Absent when the text
/// differs from the pattern or names no real date; clamped (clampedWallTime). Independent of the locale.
std::optional<WallTime> parseLocalTime(std::string_view text, std::string_view pattern);

/// The same for a moment written in UTC.
std::optional<WallTime> parseUniversalTime(std::string_view text, std::string_view pattern);

} // namespace tarvo
