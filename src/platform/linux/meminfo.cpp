#include "platform/linux/meminfo.h"

#include "platform/linux/text_cursor.h"

#include <cstring>

namespace tarvo::linux_platform {

namespace {

// The first eight characters tell the names apart, so that a line is dispatched by comparing one word.
constexpr std::size_t prefixLength = 8;

constexpr std::uint64_t prefix(std::string_view name) {
    std::uint64_t word = 0;
    for (std::size_t index = 0; index < prefixLength; ++index) {
        const auto character = index < name.size() ? static_cast<unsigned char>(name[index]) : 0U;
        word = (word << 8U) | character;
    }
    return word;
}

std::uint64_t prefixAt(const char* line) {
    std::uint64_t word = 0;
    std::memcpy(&word, line, prefixLength);
    if constexpr (__BYTE_ORDER__ == __ORDER_LITTLE_ENDIAN__) word = __builtin_bswap64(word);
    return word;
}

void take(TextCursor& cursor, std::string_view name, std::optional<std::uint64_t>& value) {
    if (cursor.skip(name)) value = cursor.number();
}

void take(TextCursor& cursor, std::string_view name, std::uint64_t& value) {
    if (cursor.skip(name)) value = cursor.number().value_or(0);
}

void takeLine(TextCursor& cursor, MemInfo& info) {
    // clang-format off
    switch (prefixAt(cursor.rest().data())) {
    case prefix("MemTotal"): return take(cursor, "MemTotal:", info.total);
    case prefix("MemAvail"): return take(cursor, "MemAvailable:", info.available);
    case prefix("MemFree:"): return take(cursor, "MemFree:", info.free);
    case prefix("Buffers:"): return take(cursor, "Buffers:", info.buffers);
    case prefix("Cached: "): return take(cursor, "Cached:", info.cached);
    case prefix("Shmem:  "): return take(cursor, "Shmem:", info.shmem);
    case prefix("SReclaim"): return take(cursor, "SReclaimable:", info.slabReclaimable);
    case prefix("SUnrecla"): return take(cursor, "SUnreclaim:", info.slabUnreclaimable);
    case prefix("KernelSt"): return take(cursor, "KernelStack:", info.kernelStack);
    case prefix("PageTabl"): return take(cursor, "PageTables:", info.pageTables);
    case prefix("SecPageT"): return take(cursor, "SecPageTables:", info.secondaryPageTables);
    case prefix("Percpu: "): return take(cursor, "Percpu:", info.perCPU);
    case prefix("Unevicta"): return take(cursor, "Unevictable:", info.unevictable);
    case prefix("Hugetlb:"): return take(cursor, "Hugetlb:", info.hugePages);
    case prefix("Zswap:  "): return take(cursor, "Zswap:", info.zswap);
    case prefix("SwapTota"): return take(cursor, "SwapTotal:", info.swapTotal);
    case prefix("SwapFree"): return take(cursor, "SwapFree:", info.swapFree);
    default: return;
    }
    // clang-format on
}

} // namespace

MemInfo parseMemInfo(std::string_view text) {
    MemInfo info;
    TextCursor cursor(text);
    while (cursor.rest().size() > prefixLength) {
        takeLine(cursor, info);
        cursor.nextLine();
    }
    return info;
}

} // namespace tarvo::linux_platform
