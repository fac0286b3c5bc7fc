#pragma once

#include "platform/clock.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// The ISO 8601 internet date-time (RFC 3339, section 5.6) as the program stores it: UTC, whole seconds, the
/// letter Z, e.g. 2026-11-16T03:53:12Z. Fractions of a second are dropped.
std::string formatISO8601(WallTime time);
void appendISO8601(std::string& text, WallTime time);

/// Reads that form, and the same with a numeric zone (+01:00). Absent for anything else: a fraction of a
/// second, a space, lower-case letters, a day that the month does not have. Moments that WallTime cannot hold
/// become its earliest or latest.
std::optional<WallTime> parseISO8601(std::string_view text);

} // namespace tarvo
