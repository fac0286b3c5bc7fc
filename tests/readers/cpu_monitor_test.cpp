#include "readers/cpu_monitor.h"

#include "support/scripted_host_statistics.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {

using testing::DoubleEq;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

CoreTicks ticks(int user, int system, int idle, int nice) {
    return {user, system, idle, nice};
}

} // namespace

TEST(CPUMonitor, FirstCallHasNothingToCompareWith) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(100, 100, 100, 100)};
    CPUMonitor monitor(host);
    EXPECT_EQ(monitor.usage(), CPUUsage{});
}

TEST(CPUMonitor, SecondCallGivesTheBusySharesInBetween) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(100, 100, 100, 100), ticks(0, 0, 0, 0)};
    CPUMonitor monitor(host);
    EXPECT_THAT(monitor.usage().perCore, IsEmpty());
    host.ticks = {ticks(110, 105, 180, 105), ticks(100, 0, 0, 0)};
    const auto& usage = monitor.usage();
    EXPECT_THAT(usage.perCore, ElementsAre(DoubleEq(20), DoubleEq(100)));
    EXPECT_DOUBLE_EQ(usage.total, 60);
}

TEST(CPUMonitor, CoresWithMoreTicksWeighMore) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(0, 0, 0, 0), ticks(0, 0, 0, 0)};
    CPUMonitor monitor(host);
    monitor.usage();
    host.ticks = {ticks(300, 0, 0, 0), ticks(0, 0, 100, 0)};
    EXPECT_DOUBLE_EQ(monitor.usage().total, 75);
}

TEST(CPUMonitor, ACoreWithoutElapsedTicksIsIdle) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(5, 5, 5, 5), ticks(0, 0, 0, 0)};
    CPUMonitor monitor(host);
    monitor.usage();
    host.ticks = {ticks(5, 5, 5, 5), ticks(50, 0, 50, 0)};
    EXPECT_THAT(monitor.usage().perCore, ElementsAre(0, 50));
    EXPECT_DOUBLE_EQ(monitor.usage().total, 0);
}

TEST(CPUMonitor, AChangedNumberOfCoresGivesOneEmptyResult) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(0, 0, 0, 0), ticks(0, 0, 0, 0)};
    CPUMonitor monitor(host);
    monitor.usage();
    host.ticks = {ticks(100, 0, 0, 0)};
    EXPECT_EQ(monitor.usage(), CPUUsage{});
    host.ticks = {ticks(150, 0, 50, 0)};
    EXPECT_THAT(monitor.usage().perCore, ElementsAre(50));
}

TEST(CPUMonitor, AFailedQueryGivesNothingAndKeepsTheEarlierCounters) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(0, 0, 0, 0)};
    CPUMonitor monitor(host);
    monitor.usage();
    host.processorLoadFails = true;
    host.ticks = {ticks(900, 0, 0, 0)};
    EXPECT_EQ(monitor.usage(), CPUUsage{});
    host.processorLoadFails = false;
    host.ticks = {ticks(25, 0, 75, 0)};
    EXPECT_THAT(monitor.usage().perCore, ElementsAre(25));
}

TEST(CPUMonitor, SharesStayBetweenZeroAndAHundred) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(0, 0, 100, 0), ticks(100, 0, 0, 0)};
    CPUMonitor monitor(host);
    monitor.usage();
    // Idle went back on the first core, busy time on the second.
    host.ticks = {ticks(100, 0, 50, 0), ticks(50, 0, 100, 0)};
    EXPECT_THAT(monitor.usage().perCore, ElementsAre(100, 0));
}

TEST(CPUMonitor, CountersThatOnlyWentBackAreIdle) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(100, 100, 100, 100)};
    CPUMonitor monitor(host);
    monitor.usage();
    host.ticks = {ticks(0, 0, 0, 0)};
    EXPECT_THAT(monitor.usage().perCore, ElementsAre(0));
    EXPECT_EQ(monitor.usage().total, 0);
}

TEST(CPUMonitor, SumsOfManyCoresDoNotOverflow) {
    constexpr std::size_t cores = 512;
    ScriptedHostStatistics host;
    host.ticks.assign(cores, ticks(0, 0, 0, 0));
    CPUMonitor monitor(host);
    monitor.usage();
    host.ticks.assign(cores, ticks(INT32_MAX, INT32_MAX, INT32_MAX, INT32_MAX));
    const auto& usage = monitor.usage();
    EXPECT_DOUBLE_EQ(usage.total, 75);
    EXPECT_THAT(usage.perCore, testing::Each(DoubleEq(75)));
}

TEST(CPUMonitorDeathTest, ADifferenceThatDoesNotFitEndsTheProgram) {
    ScriptedHostStatistics host;
    host.ticks = {ticks(INT32_MIN, 0, 0, 0)};
    CPUMonitor monitor(host);
    monitor.usage();
    host.ticks = {ticks(INT32_MAX, 0, 0, 0)};
    EXPECT_DEATH(monitor.usage(), "overflow in core ticks");
}

TEST(CPUMonitor, KeepsItsRoomBetweenCalls) {
    ScriptedHostStatistics host;
    host.ticks.assign(64, ticks(0, 0, 0, 0));
    CPUMonitor monitor(host);
    monitor.usage();
    const auto* const room = monitor.usage().perCore.data();
    host.ticks.assign(64, ticks(1, 1, 1, 1));
    EXPECT_EQ(monitor.usage().perCore.data(), room);
}

} // namespace tarvo
