#include "platform/linux/page_partition.h"

#include <algorithm>
#include <initializer_list>

namespace tarvo::linux_platform {

namespace {

// Sums and products that stop at the largest value: a file may say anything, and no figure of it may end the
// program.
std::uint64_t sum(std::initializer_list<std::uint64_t> values) {
    std::uint64_t result = 0;
    for (const auto value : values)
        result = value > UINT64_MAX - result ? UINT64_MAX : result + value;
    return result;
}

std::uint64_t bytes(std::uint64_t kilobytes) {
    return kilobytes > UINT64_MAX / 1024 ? UINT64_MAX : kilobytes * 1024;
}

std::uint64_t difference(std::uint64_t from, std::uint64_t subtract) {
    return from - std::min(from, subtract);
}

std::uint64_t availableKilobytes(const MemInfo& info) {
    if (info.available) return *info.available;
    return difference(sum({info.free, info.buffers, info.cached, info.slabReclaimable}), info.shmem);
}

} // namespace

std::optional<PageStatistics> partitionPages(const MemInfo& info, std::uint64_t zramBytes,
                                             std::uint64_t pageSize) {
    if (!info.total || pageSize == 0) return std::nullopt;
    const auto pages = [pageSize](std::uint64_t kilobytes) { return bytes(kilobytes) / pageSize; };

    const auto total = pages(*info.total);
    auto available = pages(availableKilobytes(info));
    if (available > total) available = std::min(pages(info.free), total);
    const auto used = total - available;

    const auto compressedBytes = sum({bytes(info.zswap), zramBytes});
    const auto compressedPages = compressedBytes / pageSize + (compressedBytes % pageSize != 0 ? 1 : 0);
    const auto neverMoved = sum({info.slabUnreclaimable, info.kernelStack, info.pageTables,
                                 info.secondaryPageTables, info.perCPU, info.unevictable, info.hugePages});
    PageStatistics result;
    result.compressor = std::min(compressedPages, used);
    result.wired = std::min(pages(neverMoved), used - result.compressor);
    result.active = used - result.compressor - result.wired;
    result.free = std::min(pages(info.free), available);
    result.inactive = available - result.free;
    result.pageSize = pageSize;
    return result;
}

std::uint64_t physicalBytes(const MemInfo& info) {
    return bytes(info.total.value_or(0));
}

SwapUsage swapUsage(const MemInfo& info) {
    return {.total = bytes(info.swapTotal), .used = bytes(difference(info.swapTotal, info.swapFree))};
}

} // namespace tarvo::linux_platform
