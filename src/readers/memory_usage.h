#pragma once

#include "core/reader_records.h"
#include "platform/host_statistics.h"

namespace tarvo {

/// Memory and swap now, in GB of 2^30 bytes. Inactive pages are not counted as used. Without page statistics
/// all of the memory is shown as free; without swap figures both are 0. Main thread only.
MemoryInfo memoryUsage(HostStatistics& host);

} // namespace tarvo
