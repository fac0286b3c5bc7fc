#include "readers/disk_io_totals.h"

#include "readers/checked_arithmetic.h"

namespace tarvo {

DiskIOTotals diskIOTotals(IORegistry& registry) {
    DiskIOTotals totals;
    const auto services = registry.services("IOBlockStorageDriver");
    if (!services) return totals;
    for (const auto& service : *services) {
        const auto* const statistics = service.dictionary("Statistics");
        if (statistics == nullptr) continue;
        const auto read = statistics->unsignedInteger("Bytes (Read)").value_or(0);
        const auto written = statistics->unsignedInteger("Bytes (Write)").value_or(0);
        totals.read = checkedSum(totals.read, read, "disk bytes");
        totals.write = checkedSum(totals.write, written, "disk bytes");
    }
    return totals;
}

} // namespace tarvo
