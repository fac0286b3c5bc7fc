#include "core/stats_snapshot.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

TEST(StatsSnapshot, TheEmptySnapshotHoldsZerosAndNothing) {
    const StatsSnapshot empty;
    for (const double number :
         {empty.cpu, empty.memPercent, empty.memUsedGB, empty.memTotalGB, empty.memActiveGB, empty.memWiredGB,
          empty.memCompressedGB, empty.memInactiveGB, empty.memFreeGB, empty.swapUsedGB, empty.swapTotalGB,
          empty.loadAvg1, empty.loadAvg5, empty.loadAvg15, empty.diskReadRate, empty.diskWriteRate,
          empty.netInRate, empty.netOutRate}) {
        EXPECT_EQ(number, 0.0);
    }
    EXPECT_EQ(empty.totalNetIn, 0U);
    EXPECT_EQ(empty.totalNetOut, 0U);
    EXPECT_FALSE(empty.hasFan);
}

TEST(StatsSnapshot, TheEmptySnapshotHasEmptyListsAndAbsentOptionals) {
    const StatsSnapshot empty;
    EXPECT_THAT(empty.perCore, testing::IsEmpty());
    EXPECT_THAT(empty.fanRPMs, testing::IsEmpty());
    EXPECT_THAT(empty.topCPU, testing::IsEmpty());
    EXPECT_THAT(empty.topMem, testing::IsEmpty());
    EXPECT_THAT(empty.topNetProcesses, testing::IsEmpty());
    for (const auto& number : {empty.cpuTemp, empty.gpuTemp, empty.gpuUtil, empty.powerWatts,
                               empty.diskFreeGB, empty.diskTotalGB}) {
        EXPECT_EQ(number, std::nullopt);
    }
    EXPECT_FALSE(empty.localIP || empty.publicIP || empty.battery || empty.timeMachine || empty.wifiSSID);
}

TEST(StatsSnapshot, ACopyHoldsAllFieldsAndStandsAlone) {
    StatsSnapshot original;
    original.perCore = {1, 2};
    original.localIP = "192.0.2.7";
    original.topCPU = {{.pid = 7, .name = "cc1plus", .cpu = 99, .memPercent = 1}};
    StatsSnapshot copy = original;
    EXPECT_EQ(copy, original);
    copy.perCore[0] = 50;
    EXPECT_EQ(original.perCore[0], 1);
}

} // namespace
} // namespace tarvo
