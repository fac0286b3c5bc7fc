#include "platform/linux/net_route.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(NetRoute, TakesOnlyDefaultRoutesThatAreUp) {
    EXPECT_THAT(parseDefaultRoutes(
                    "Iface\tDestination\tGateway \tFlags\tRefCnt\tUse\tMetric\tMask\t\tMTU\tWindow\tIRTT\n"
                    "wlan0\t00000000\t0101A8C0\t0003\t0\t0\t600\t00000000\t0\t0\t0\n"
                    "eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\t00000000\t0\t0\t0\n"
                    "eth0\t0001A8C0\t00000000\t0001\t0\t0\t100\t00FFFFFF\t0\t0\t0\n"
                    "tun0\t00000000\t00000000\t0001\t0\t0\t50\t00000080\t0\t0\t0\n"
                    "down0\t00000000\t00000000\t0002\t0\t0\t50\t00000000\t0\t0\t0\n"
                    "lo\t00000000\t00000000\t0201\t0\t0\t50\t00000000\t0\t0\t0\n"),
                ElementsAre(DefaultRoute{"wlan0", 600}, DefaultRoute{"eth0", 100}));
}

TEST(NetRoute, LeavesOutLinesThatAreCut) {
    EXPECT_THAT(parseDefaultRoutes(""), IsEmpty());
    EXPECT_THAT(parseDefaultRoutes("eth0\t00000000\t0101A8C0\t0003\t0\t0\t100\n"), IsEmpty());
    EXPECT_THAT(parseDefaultRoutes("eth0\t00000000"), IsEmpty());
    EXPECT_THAT(parseDefaultRoutes("\n\n\n"), IsEmpty());
}

} // namespace tarvo::linux_platform
