#include "readers/network_totals.h"

#include "support/scripted_network_interfaces.h"

#include <gtest/gtest.h>

namespace tarvo {

namespace {

LinkEntry link(std::uint64_t received, std::uint64_t sent) {
    return {
        .hasAddress = true, .isUp = true, .isLoopback = false, .statistics = LinkStatistics{received, sent}};
}

NetworkTotals totals(std::vector<LinkEntry> entries) {
    ScriptedNetworkInterfaces interfaces;
    interfaces.linkAnswer = std::move(entries);
    std::vector<LinkEntry> room;
    return networkTotals(interfaces, room);
}

} // namespace

TEST(NetworkTotals, AddUpWhatEachInterfaceCounted) {
    EXPECT_EQ(totals({link(100, 10), link(23, 1)}), (NetworkTotals{123, 11}));
}

TEST(NetworkTotals, PassOverLoopbackDownAndUncountedInterfaces) {
    auto loopback = link(1, 1);
    loopback.isLoopback = true;
    auto down = link(2, 2);
    down.isUp = false;
    auto withoutAddress = link(4, 4);
    withoutAddress.hasAddress = false;
    auto uncounted = link(8, 8);
    uncounted.statistics.reset();
    EXPECT_EQ(totals({loopback, down, withoutAddress, uncounted, link(16, 32)}), (NetworkTotals{16, 32}));
}

TEST(NetworkTotals, OfCountersThatWrappedAtFourGigabytesGoDown) {
    const auto before = totals({link(0xFFFF'FFF0U, 0), link(1000, 0)});
    const auto after = totals({link(0x10U, 0), link(1000, 0)});
    EXPECT_LT(after.inBytes, before.inBytes);
    EXPECT_EQ(after.inBytes, 1016U);
}

TEST(NetworkTotals, CountBeyondFourGigabytes) {
    EXPECT_EQ(totals({link(0x1'0000'0000U, 5'000'000'000U)}),
              (NetworkTotals{0x1'0000'0000U, 5'000'000'000U}));
}

TEST(NetworkTotals, AreZeroWithoutAList) {
    ScriptedNetworkInterfaces interfaces;
    interfaces.linkAnswer = {link(1, 1)};
    interfaces.linksFail = true;
    std::vector<LinkEntry> room;
    EXPECT_EQ(networkTotals(interfaces, room), NetworkTotals{});
}

TEST(NetworkTotalsDeathTest, ASumThatDoesNotFitEndsTheProgram) {
    EXPECT_DEATH(totals({link(UINT64_MAX, 0), link(1, 0)}), "overflow in network bytes");
}

} // namespace tarvo
