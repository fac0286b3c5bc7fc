#pragma once

#include "core/uuid.h"
#include "platform/clock.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

/// One notification that was raised.
struct AlertLogEntry {
    UUID id;
    WallTime date;
    std::string title; ///< UTF-8, in the language of that moment
    std::string body;  ///< likewise
    bool operator==(const AlertLogEntry&) const = default;
};

/// The content of alertlog.json: a compact JSON array of objects with the keys "id", "date" (ISO 8601, whole
/// seconds), "title" and "body". Absent when a text is not UTF-8.
std::optional<std::string> encodeAlertLog(const std::vector<AlertLogEntry>& entries);

/// Reads a whole file. Keys may come in any order and unknown ones are passed over; absent for anything else:
/// what is no such array, a missing key, another type, a malformed identifier or date.
std::optional<std::vector<AlertLogEntry>> parseAlertLog(std::string_view json);

} // namespace tarvo
