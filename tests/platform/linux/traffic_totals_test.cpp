#include "platform/linux/traffic_totals.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

constexpr ProcessIdentity browser{10, 100};
constexpr ProcessIdentity mail{20, 200};

TEST(TrafficTotals, ANewSocketCountsWithAllItMoved) {
    TrafficTotals totals;
    totals.add({{1, 1, browser, {1000, 50}}, {2, 2, browser, {5, 5}}, {3, 3, mail, {7, 8}}});
    EXPECT_THAT(totals.processes(),
                ElementsAre(Pair(browser, SocketTraffic{1005, 55}), Pair(mail, SocketTraffic{7, 8})));
}

TEST(TrafficTotals, AKnownSocketCountsWithItsGrowth) {
    TrafficTotals totals;
    totals.add({{1, 1, browser, {1000, 50}}});
    totals.add({{1, 1, browser, {1300, 60}}});
    totals.add({{1, 1, browser, {1300, 60}}});
    EXPECT_THAT(totals.processes(), ElementsAre(Pair(browser, SocketTraffic{1300, 60})));
}

TEST(TrafficTotals, AClosedSocketsBytesStayWithItsProcess) {
    TrafficTotals totals;
    totals.add({{1, 1, browser, {1000, 50}}});
    totals.add({});
    totals.add({{2, 2, browser, {10, 10}}});
    EXPECT_THAT(totals.processes(), ElementsAre(Pair(browser, SocketTraffic{1010, 60})));
}

TEST(TrafficTotals, AnInodeWithAnotherCookieIsAnotherSocket) {
    TrafficTotals totals;
    totals.add({{1, 1, browser, {1000, 50}}});
    totals.add({{1, 2, browser, {400, 70}}});
    EXPECT_THAT(totals.processes(), ElementsAre(Pair(browser, SocketTraffic{1400, 120})));
}

TEST(TrafficTotals, AHandedOverSocketsGrowthCountsForTheNewOwner) {
    TrafficTotals totals;
    totals.add({{1, 1, browser, {1000, 50}}});
    totals.add({{1, 1, mail, {1100, 60}}});
    EXPECT_THAT(totals.processes(),
                ElementsAre(Pair(browser, SocketTraffic{1000, 50}), Pair(mail, SocketTraffic{100, 10})));
}

TEST(TrafficTotals, ACounterThatWentBackAddsNothing) {
    TrafficTotals totals;
    totals.add({{1, 1, browser, {1000, 50}}});
    totals.add({{1, 1, browser, {900, 60}}});
    EXPECT_THAT(totals.processes(), ElementsAre(Pair(browser, SocketTraffic{1000, 60})));
}

TEST(TrafficTotals, EndedProcessesAreForgotten) {
    TrafficTotals totals;
    totals.add({{1, 1, browser, {1000, 50}}, {2, 2, mail, {1, 1}}});
    totals.forget([](const ProcessIdentity& process) { return process == browser; });
    EXPECT_THAT(totals.processes(), ElementsAre(Pair(mail, SocketTraffic{1, 1})));
    totals.forget([](const ProcessIdentity&) { return true; });
    EXPECT_THAT(totals.processes(), IsEmpty());
}

} // namespace
} // namespace tarvo::linux_platform
