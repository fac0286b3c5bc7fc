#pragma once

#include <optional>
#include <string_view>

namespace tarvo {

/// The backup tool's status text: whether a backup is in progress.
bool backupIsRunning(std::string_view status);

/// Percent, 0 to 100, from the status text; absent when the tool gives none or a negative one.
std::optional<double> backupPercent(std::string_view status);

/// The last component of the backup path that the tool printed, e.g. "2025-03-01-141516"; absent for any
/// other answer.
std::optional<std::string_view> latestBackupName(std::string_view output);

} // namespace tarvo
