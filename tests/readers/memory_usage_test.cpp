#include "readers/memory_usage.h"

#include "support/scripted_host_statistics.h"

#include <gtest/gtest.h>

namespace tarvo {

namespace {

constexpr std::uint64_t gigabyte = std::uint64_t{1} << 30U;
constexpr std::uint64_t pagesPerGigabyte = gigabyte / 4096;

PageStatistics pages() {
    return {.active = 3 * pagesPerGigabyte,
            .wired = 2 * pagesPerGigabyte,
            .compressor = pagesPerGigabyte,
            .inactive = 4 * pagesPerGigabyte,
            .free = 6 * pagesPerGigabyte,
            .pageSize = 4096};
}

} // namespace

TEST(MemoryUsage, CountsActiveWiredAndCompressedAsUsed) {
    ScriptedHostStatistics host;
    host.memoryAnswer = {16 * gigabyte, pages(), SwapUsage{.total = 2 * gigabyte, .used = gigabyte / 2}};
    const MemoryInfo expected{.memPercent = 37.5,
                              .memUsedGB = 6,
                              .memTotalGB = 16,
                              .memActiveGB = 3,
                              .memWiredGB = 2,
                              .memCompressedGB = 1,
                              .memInactiveGB = 4,
                              .memFreeGB = 6,
                              .swapUsedGB = 0.5,
                              .swapTotalGB = 2};
    EXPECT_EQ(memoryUsage(host), expected);
}

TEST(MemoryUsage, UsesThePageSizeOfTheMachine) {
    ScriptedHostStatistics host;
    auto statistics = pages();
    statistics.pageSize = 16384;
    host.memoryAnswer = {64 * gigabyte, statistics, std::nullopt};
    EXPECT_DOUBLE_EQ(memoryUsage(host).memActiveGB, 12);
}

TEST(MemoryUsage, WithoutPageStatisticsAllMemoryIsFree) {
    ScriptedHostStatistics host;
    host.memoryAnswer = {16 * gigabyte, std::nullopt, SwapUsage{.total = gigabyte, .used = gigabyte}};
    const auto info = memoryUsage(host);
    EXPECT_EQ(info.memFreeGB, info.memTotalGB);
    EXPECT_EQ(info.memTotalGB, 16);
    EXPECT_EQ(info.memPercent, 0);
    EXPECT_EQ(info.memUsedGB, 0);
    EXPECT_EQ(info.memActiveGB, 0);
    EXPECT_EQ(info.memWiredGB, 0);
    EXPECT_EQ(info.memCompressedGB, 0);
    EXPECT_EQ(info.memInactiveGB, 0);
    EXPECT_EQ(info.swapUsedGB, 1);
    EXPECT_EQ(info.swapTotalGB, 1);
}

TEST(MemoryUsage, WithoutAPhysicalSizeThePercentageIsZero) {
    ScriptedHostStatistics host;
    host.memoryAnswer = {0, pages(), std::nullopt};
    const auto info = memoryUsage(host);
    EXPECT_EQ(info.memPercent, 0);
    EXPECT_EQ(info.memUsedGB, 6);
    EXPECT_EQ(info.memTotalGB, 0);
}

TEST(MemoryUsage, WithoutSwapFiguresBothAreZero) {
    ScriptedHostStatistics host;
    host.memoryAnswer = {16 * gigabyte, pages(), std::nullopt};
    EXPECT_EQ(memoryUsage(host).swapUsedGB, 0);
    EXPECT_EQ(memoryUsage(host).swapTotalGB, 0);
}

TEST(MemoryUsage, WithNothingKnownEverythingIsZero) {
    ScriptedHostStatistics host;
    EXPECT_EQ(memoryUsage(host), MemoryInfo{});
}

TEST(MemoryUsageDeathTest, CountsThatDoNotFitEndTheProgram) {
    ScriptedHostStatistics host;
    auto huge = pages();
    huge.inactive = UINT64_MAX / 2;
    host.memoryAnswer = {16 * gigabyte, huge, std::nullopt};
    EXPECT_DEATH(memoryUsage(host), "overflow in page bytes");

    huge = pages();
    huge.active = huge.wired = UINT64_MAX / 4096;
    host.memoryAnswer = {16 * gigabyte, huge, std::nullopt};
    EXPECT_DEATH(memoryUsage(host), "overflow in used memory");
}

} // namespace tarvo
