// /proc/meminfo, with eight bytes before it that say what the compressed disks hold and how large a page is.

#include "platform/linux/meminfo.h"
#include "platform/linux/page_partition.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>

using namespace tarvo;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::uint64_t first = 0;
    if (size < sizeof(first)) return 0;
    std::memcpy(&first, data, sizeof(first));
    const std::uint64_t pageSize = std::uint64_t{4096} << (first % 3 * 2);
    const std::string_view text(reinterpret_cast<const char*>(data) + sizeof(first), size - sizeof(first));

    const auto info = linux_platform::parseMemInfo(text);
    const auto swap = linux_platform::swapUsage(info);
    if (swap.used > swap.total) std::abort();
    const auto pages = linux_platform::partitionPages(info, first, pageSize);
    if (pages.has_value() != info.total.has_value()) std::abort();
    if (!pages) return 0;
    const auto total = linux_platform::physicalBytes(info) / pageSize;
    for (const auto part : {pages->active, pages->wired, pages->compressor, pages->inactive, pages->free}) {
        if (part > total) std::abort();
    }
    const auto sum = pages->active + pages->wired + pages->compressor + pages->inactive + pages->free;
    if (sum != total) std::abort();
    return 0;
}
