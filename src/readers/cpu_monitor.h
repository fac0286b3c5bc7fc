#pragma once

#include "core/reader_records.h"
#include "platform/host_statistics.h"

#include <vector>

namespace tarvo {

/// Processor load between two calls, from the tick counters of each core. Keeps the counters of the previous
/// call; one monitor a model. Main thread only; allocates nothing while the number of cores stays.
class CPUMonitor {
public:
    explicit CPUMonitor(HostStatistics& host) : host_(host) {}

    /// Busy share of each core and of all together since the previous call, percent 0 to 100, kernel order.
    /// Total 0 and no cores at the first call, when the number of cores changed and when the counters cannot
    /// be read; in the last case the previous counters are kept. The reference is valid until the next call.
    const CPUUsage& usage();

private:
    HostStatistics& host_;
    std::vector<CoreTicks> previous_;
    std::vector<CoreTicks> current_;
    CPUUsage usage_;
};

} // namespace tarvo
