#pragma once

#include "core/reader_records.h"
#include "platform/io_registry.h"

namespace tarvo {

/// Bytes read and written by all disks since their drivers started counting; 0 and 0 when there are none or
/// they cannot be listed. The sums can go down when a disk is taken away. Main thread only.
DiskIOTotals diskIOTotals(IORegistry& registry);

} // namespace tarvo
