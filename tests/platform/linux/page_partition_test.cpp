#include "platform/linux/page_partition.h"

#include <gtest/gtest.h>

#include <random>

namespace tarvo::linux_platform {

namespace {

constexpr std::uint64_t page = 4096;

// In kB; pages of 4 kB, so that a quarter of each is the number of pages.
MemInfo machine() {
    MemInfo info;
    info.total = 16'000;
    info.available = 9'000;
    info.free = 4'000;
    info.buffers = 400;
    info.cached = 5'000;
    info.slabReclaimable = 600;
    info.shmem = 1'000;
    info.slabUnreclaimable = 100;
    info.kernelStack = 40;
    info.pageTables = 60;
    return info;
}

PageStatistics partition(const MemInfo& info, std::uint64_t zramBytes = 0, std::uint64_t pageSize = page) {
    return partitionPages(info, zramBytes, pageSize).value();
}

std::uint64_t used(const PageStatistics& pages) {
    return pages.active + pages.wired + pages.compressor;
}

} // namespace

TEST(PagePartition, OfAnOrdinaryMachine) {
    const PageStatistics expected{
        .active = 1'700, .wired = 50, .compressor = 0, .inactive = 1'250, .free = 1'000, .pageSize = page};
    EXPECT_EQ(partition(machine()), expected);
    EXPECT_EQ(physicalBytes(machine()), 16'000U * 1024);
}

TEST(PagePartition, EveryKindOfFixedMemoryIsWired) {
    auto info = machine();
    info.secondaryPageTables = 4;
    info.perCPU = 8;
    info.unevictable = 16;
    info.hugePages = 32;
    EXPECT_EQ(partition(info).wired, 50U + 15U);
}

TEST(PagePartition, EstimatesWhatIsAvailableOnOldKernels) {
    auto info = machine();
    info.available.reset();
    EXPECT_EQ(used(partition(info)), (16'000U - (4'000 + 400 + 5'000 + 600 - 1'000)) / 4);
    info.shmem = 50'000;
    EXPECT_EQ(used(partition(info)), 4'000U);
    EXPECT_EQ(partition(info).free, 0U);
}

TEST(PagePartition, TakesFreeMemoryWhereMoreThanEverythingIsAvailable) {
    auto info = machine();
    info.available = 99'000;
    EXPECT_EQ(used(partition(info)), 3'000U);
    EXPECT_EQ(partition(info).inactive, 0U);
}

TEST(PagePartition, LessCanBeAvailableThanIsFree) {
    auto info = machine();
    info.available = 3'000;
    EXPECT_EQ(partition(info).free, 750U);
    EXPECT_EQ(partition(info).inactive, 0U);
}

TEST(PagePartition, CountsLargerPages) {
    const auto pages = partition(machine(), 0, 16'384);
    EXPECT_EQ(pages.pageSize, 16'384U);
    EXPECT_EQ(used(pages) + pages.inactive + pages.free, 1'000U);
}

TEST(PagePartition, HugePagesBeyondWhatIsUsedAreCutOff) {
    auto info = machine();
    info.hugePages = 90'000;
    const auto pages = partition(info);
    EXPECT_EQ(pages.wired, 1'750U);
    EXPECT_EQ(pages.active, 0U);
}

TEST(PagePartition, CompressedMemoryIsRoundedUpToPagesAndCutOffAtWhatIsUsed) {
    auto info = machine();
    info.zswap = 10;
    EXPECT_EQ(partition(info, 1).compressor, 3U);
    const auto pages = partition(info, std::uint64_t{1} << 40U);
    EXPECT_EQ(pages.compressor, 1'750U);
    EXPECT_EQ(pages.wired, 0U);
    EXPECT_EQ(pages.active, 0U);
}

TEST(PagePartition, IsAbsentWithoutATotal) {
    auto info = machine();
    info.total.reset();
    EXPECT_EQ(partitionPages(info, 0, page), std::nullopt);
    EXPECT_EQ(physicalBytes(info), 0U);
}

TEST(PagePartition, SwapIsTotalLessFree) {
    MemInfo info;
    EXPECT_EQ(swapUsage(info), SwapUsage{});
    info.swapTotal = 100;
    info.swapFree = 40;
    EXPECT_EQ(swapUsage(info), (SwapUsage{.total = 102'400, .used = 61'440}));
    info.swapFree = 400;
    EXPECT_EQ(swapUsage(info).used, 0U);
}

TEST(PagePartition, AlwaysAddsUpToAllOfMemory) {
    std::mt19937_64 random(7);
    const auto any = [&random] { return random() >> (random() % 65 % 64); };
    for (int round = 0; round < 20'000; ++round) {
        MemInfo info;
        info.total = any();
        if (random() % 4 != 0) info.available = any();
        for (auto* field :
             {&info.free, &info.buffers, &info.cached, &info.shmem, &info.slabReclaimable,
              &info.slabUnreclaimable, &info.kernelStack, &info.unevictable, &info.hugePages, &info.zswap}) {
            *field = any();
        }
        const std::uint64_t pageSize = page << (2 * (random() % 3));
        const auto pages = partition(info, any(), pageSize);
        const auto total = physicalBytes(info) / pageSize;
        ASSERT_LE(pages.active, total);
        ASSERT_LE(pages.wired, total);
        ASSERT_LE(pages.compressor, total);
        ASSERT_LE(pages.inactive, total);
        ASSERT_EQ(used(pages) + pages.inactive + pages.free, total);
    }
}

} // namespace tarvo::linux_platform
