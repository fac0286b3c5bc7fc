#include "platform/linux/meminfo.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(MemInfo, TakesEveryLineThatIsUsed) {
    const auto info = parseMemInfo("MemTotal:       16000 kB\n"
                                   "MemFree:         1000 kB\n"
                                   "MemAvailable:    9000 kB\n"
                                   "Buffers:          100 kB\n"
                                   "Cached:          7000 kB\n"
                                   "SwapCached:        66 kB\n"
                                   "Active:          5000 kB\n"
                                   "Unevictable:       11 kB\n"
                                   "SwapTotal:       8000 kB\n"
                                   "SwapFree:        7500 kB\n"
                                   "Zswap:             55 kB\n"
                                   "Zswapped:         555 kB\n"
                                   "Shmem:             77 kB\n"
                                   "KReclaimable:     999 kB\n"
                                   "SReclaimable:     300 kB\n"
                                   "SUnreclaim:       200 kB\n"
                                   "KernelStack:       30 kB\n"
                                   "PageTables:        40 kB\n"
                                   "SecPageTables:      4 kB\n"
                                   "Percpu:             5 kB\n"
                                   "ShmemHugePages:   888 kB\n"
                                   "HugePages_Total:    3\n"
                                   "Hugetlb:         2048 kB\n");
    const MemInfo expected{.total = 16000,
                           .available = 9000,
                           .free = 1000,
                           .buffers = 100,
                           .cached = 7000,
                           .shmem = 77,
                           .slabReclaimable = 300,
                           .slabUnreclaimable = 200,
                           .kernelStack = 30,
                           .pageTables = 40,
                           .secondaryPageTables = 4,
                           .perCPU = 5,
                           .unevictable = 11,
                           .hugePages = 2048,
                           .zswap = 55,
                           .swapTotal = 8000,
                           .swapFree = 7500};
    EXPECT_EQ(info, expected);
}

TEST(MemInfo, DoesNotMindOrderOrMissingLines) {
    const auto info = parseMemInfo("SwapFree:  5 kB\nx\n\nMemTotal: 7 kB");
    EXPECT_EQ(info.swapFree, 5U);
    EXPECT_EQ(info.total, 7U);
    EXPECT_EQ(info.available, std::nullopt);
    EXPECT_EQ(info.free, 0U);
}

TEST(MemInfo, IsEmptyForOtherText) {
    EXPECT_EQ(parseMemInfo(""), MemInfo{});
    EXPECT_EQ(parseMemInfo("MemTotal"), MemInfo{});
    EXPECT_EQ(parseMemInfo("MemTotal:"), MemInfo{});
    EXPECT_EQ(parseMemInfo("MemTotal: many kB\n"), MemInfo{});
    EXPECT_EQ(parseMemInfo("MemTotally: 5 kB\n"), MemInfo{});
    EXPECT_EQ(parseMemInfo(std::string_view("\0\0\0\0\0\0\0\0\0\0\0\0", 12)), MemInfo{});
}

} // namespace tarvo::linux_platform
