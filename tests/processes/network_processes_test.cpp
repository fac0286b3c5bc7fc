#include "processes/network_processes.h"

#include "support/scripted_child_processes.h"
#include "support/scripted_sockets.h"

#include <fmt/format.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

TEST(NetworkProcesses, TheLargestTotalsComeFirst) {
    std::vector<NetProcInfo> processes;
    for (std::uint64_t i = 0; i < 40; ++i)
        processes.push_back({fmt::format("p{}", i), i * 7 % 40, 100});
    const auto heaviest = heaviestNetworkProcesses(processes, 5);
    ASSERT_THAT(heaviest, SizeIs(5));
    for (std::uint64_t i = 0; i < 5; ++i)
        EXPECT_EQ(heaviest[i].bytesIn, 39 - i);
}

TEST(NetworkProcesses, EqualTotalsKeepTheirOrder) {
    EXPECT_THAT(
        heaviestNetworkProcesses({{"z", 300, 0}, {"small", 1, 1}, {"a", 100, 200}}, 5),
        ElementsAre(NetProcInfo{"z", 300, 0}, NetProcInfo{"a", 100, 200}, NetProcInfo{"small", 1, 1}));
}

TEST(NetworkProcesses, IdleProcessesAreLeftOut) {
    EXPECT_THAT(heaviestNetworkProcesses({{"idle", 0, 0}, {"in", 1, 0}, {"out", 0, 2}}, 5),
                ElementsAre(NetProcInfo{"out", 0, 2}, NetProcInfo{"in", 1, 0}));
}

TEST(NetworkProcesses, ATotalBeyondTheRangeIsTheLargest) {
    EXPECT_THAT(heaviestNetworkProcesses({{"small", 5, 5}, {"huge", UINT64_MAX, 1}}, 1),
                ElementsAre(NetProcInfo{"huge", UINT64_MAX, 1}));
}

TEST(NetworkProcesses, ALimitOfZeroGivesNothing) {
    EXPECT_THAT(heaviestNetworkProcesses({{"a", 5, 5}}, 0), IsEmpty());
}

TEST(NetworkProcessesDeathTest, ANegativeLimitStopsTheProcess) {
    EXPECT_DEATH(heaviestNetworkProcesses({}, -1), "");
}

TEST(NetworkProcesses, TheToolIsAskedForOneSampleOfTwoColumns) {
    ScriptedChildProcesses children;
    children.outputs["/usr/bin/nettop"] = ",bytes_in,bytes_out,\nlaunchd.1,0,0,\nSome.App.123,10,20,\n";
    EXPECT_THAT(topNetworkProcesses(children, 5), ElementsAre(NetProcInfo{"Some.App", 10, 20}));
    EXPECT_THAT(children.runs, ElementsAre(Pair("/usr/bin/nettop", ElementsAre("-P", "-L", "1", "-x", "-J",
                                                                               "bytes_in,bytes_out"))));
}

TEST(NetworkProcesses, AToolThatCannotBeStartedGivesNothing) {
    ScriptedChildProcesses children;
    EXPECT_THAT(topNetworkProcesses(children, 5), IsEmpty());
}

TEST(NetworkProcesses, APlatformsRowsObeyTheSameRules) {
    ScriptedProcessTraffic traffic;
    traffic.answer = {{"a", 1, 2}, {"idle", 0, 0}, {"b", 5, 6}};
    EXPECT_THAT(topNetworkProcesses(traffic, 1), ElementsAre(NetProcInfo{"b", 5, 6}));
}

} // namespace
} // namespace tarvo
