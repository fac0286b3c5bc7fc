#include "platform/linux/process_growth.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

ScannedProcess process(std::int32_t pid, std::uint64_t startTime, std::uint64_t ticks) {
    ScannedProcess result;
    result.pid = pid;
    result.startTime = startTime;
    result.ticks = ticks;
    return result;
}

std::vector<std::uint64_t> growthBetween(std::vector<ScannedProcess> earlier,
                                         std::vector<ScannedProcess> later) {
    ProcessScan before;
    before.processes = std::move(earlier);
    ProcessScan after;
    after.processes = std::move(later);
    std::vector<std::uint64_t> growth{99};
    measureGrowth(before, after, growth);
    return growth;
}

TEST(ProcessGrowth, TicksSinceTheEarlierScanAreCounted) {
    EXPECT_THAT(
        growthBetween({process(1, 5, 100), process(7, 6, 20)}, {process(1, 5, 130), process(7, 6, 20)}),
        ElementsAre(30, 0));
}

TEST(ProcessGrowth, ANewProcessCountsWithAllItsTicks) {
    EXPECT_THAT(
        growthBetween({process(5, 50, 100)}, {process(3, 60, 7), process(5, 50, 101), process(9, 70, 8)}),
        ElementsAre(7, 1, 8));
}

TEST(ProcessGrowth, AReusedNumberIsANewProcess) {
    EXPECT_THAT(growthBetween({process(5, 50, 100)}, {process(5, 60, 130)}), ElementsAre(130));
}

TEST(ProcessGrowth, ACounterThatWentBackCountsNothing) {
    EXPECT_THAT(growthBetween({process(5, 50, 100)}, {process(5, 50, 90)}), ElementsAre(0));
}

TEST(ProcessGrowth, AnEndedProcessIsPassedOver) {
    EXPECT_THAT(growthBetween({process(1, 5, 1), process(2, 5, 1), process(9, 5, 1)}, {process(9, 5, 4)}),
                ElementsAre(3));
    EXPECT_THAT(growthBetween({process(1, 5, 1)}, {}), IsEmpty());
}

TEST(ProcessGrowth, AProcessThatTheEarlierScanMissedCountsNothing) {
    // It ran before another one that was seen, so its ticks are of its whole life, not of the time between.
    EXPECT_THAT(growthBetween({process(9, 500, 1)}, {process(4, 20, 100'000), process(9, 500, 4)}),
                ElementsAre(0, 3));
}

} // namespace
} // namespace tarvo::linux_platform
