#include "readers/memory_usage.h"

#include "readers/checked_arithmetic.h"

namespace tarvo {

namespace {

double gigabytes(std::uint64_t bytes) {
    return static_cast<double>(bytes) / (1U << 30U);
}

void fillPages(MemoryInfo& info, const PageStatistics& pages, std::uint64_t physicalBytes) {
    const auto bytes = [&pages](std::uint64_t count) {
        return checkedProduct(count, pages.pageSize, "page bytes");
    };
    const auto active = bytes(pages.active);
    const auto wired = bytes(pages.wired);
    const auto compressed = bytes(pages.compressor);
    const auto used = checkedSum(checkedSum(active, wired, "used memory"), compressed, "used memory");

    if (physicalBytes > 0) {
        info.memPercent = static_cast<double>(used) / static_cast<double>(physicalBytes) * 100;
    }
    info.memUsedGB = gigabytes(used);
    info.memActiveGB = gigabytes(active);
    info.memWiredGB = gigabytes(wired);
    info.memCompressedGB = gigabytes(compressed);
    info.memInactiveGB = gigabytes(bytes(pages.inactive));
    info.memFreeGB = gigabytes(bytes(pages.free));
}

} // namespace

MemoryInfo memoryUsage(HostStatistics& host) {
    const auto memory = host.memory();
    MemoryInfo info;
    info.memTotalGB = gigabytes(memory.physicalBytes);
    if (memory.swap) {
        info.swapUsedGB = gigabytes(memory.swap->used);
        info.swapTotalGB = gigabytes(memory.swap->total);
    }
    if (memory.pages) {
        fillPages(info, *memory.pages, memory.physicalBytes);
    } else {
        info.memFreeGB = info.memTotalGB;
    }
    return info;
}

} // namespace tarvo
