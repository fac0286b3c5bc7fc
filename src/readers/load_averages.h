#pragma once

#include "core/reader_records.h"
#include "platform/host_statistics.h"

#include <optional>

namespace tarvo {

/// Load averages over 1, 5 and 15 minutes; absent when they cannot be read. Main thread only.
std::optional<LoadAverages> loadAverages(HostStatistics& host);

} // namespace tarvo
