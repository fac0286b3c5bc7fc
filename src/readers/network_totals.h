#pragma once

#include "core/reader_records.h"
#include "platform/network_interfaces.h"

#include <vector>

namespace tarvo {

/// Bytes received and sent by all interfaces that are up, are not loopback and have statistics; 0 and 0 when
/// they cannot be listed. The sums can go down when an interface goes. `entries` is room that is used again
/// at each call. Main thread only; allocates nothing while the interfaces stay.
NetworkTotals networkTotals(NetworkInterfaces& interfaces, std::vector<LinkEntry>& entries);

} // namespace tarvo
