#include "readers/network_totals.h"

#include "readers/checked_arithmetic.h"

namespace tarvo {

NetworkTotals networkTotals(NetworkInterfaces& interfaces, std::vector<LinkEntry>& entries) {
    NetworkTotals totals;
    if (!interfaces.links(entries)) return totals;
    for (const auto& entry : entries) {
        if (!entry.hasAddress || !entry.isUp || entry.isLoopback || !entry.statistics) continue;
        totals.inBytes = checkedSum(totals.inBytes, entry.statistics->receivedBytes, "network bytes");
        totals.outBytes = checkedSum(totals.outBytes, entry.statistics->sentBytes, "network bytes");
    }
    return totals;
}

} // namespace tarvo
