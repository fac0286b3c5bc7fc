#include "platform/linux/proc_net_dev.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<InterfaceCounters> parsed(std::string_view text) {
    std::vector<InterfaceCounters> interfaces;
    parseNetDev(text, interfaces);
    return interfaces;
}

constexpr std::string_view header =
    "Inter-|   Receive                                                |  Transmit\n"
    " face |bytes    packets errs drop fifo frame compressed multicast|bytes    packets errs drop fifo colls "
    "carrier "
    "compressed\n";

} // namespace

TEST(ProcNetDev, TakesTheTwoByteCounters) {
    EXPECT_THAT(
        parsed(
            std::string(header) +
            "    lo:    3319      30    0    0    0     0          0         0     3320      30 0 0 0 0 0 0\n"
            "  eth0: 5000000000 5585    1    2    3     4          5         6   349341    4448 0 0 0 0 0 "
            "0\n"),
        ElementsAre(InterfaceCounters{"lo", 3319, 3320}, InterfaceCounters{"eth0", 5'000'000'000, 349'341}));
}

TEST(ProcNetDev, SplitsAtTheLastColon) {
    EXPECT_THAT(parsed("eth0:1:10 2 3 4 5 6 7 8 9 10\n"), ElementsAre(InterfaceCounters{"eth0:1", 10, 9}));
    EXPECT_THAT(parsed("eth0.5:10 2 3 4 5 6 7 8 9"), ElementsAre(InterfaceCounters{"eth0.5", 10, 9}));
}

TEST(ProcNetDev, LeavesOutLinesWithoutBothCounters) {
    EXPECT_THAT(parsed(""), IsEmpty());
    EXPECT_THAT(parsed(header), IsEmpty());
    EXPECT_THAT(parsed("eth0: 1 2 3 4 5 6 7 8\neth1:\n: 1 2 3 4 5 6 7 8 9\neth2: x 2 3 4 5 6 7 8 9\n"
                       "../x: 1 2 3 4 5 6 7 8 9\neth3: 1 2 3 4 5 6 7 8 9\n\n"),
                ElementsAre(InterfaceCounters{"eth3", 1, 9}));
}

} // namespace tarvo::linux_platform
