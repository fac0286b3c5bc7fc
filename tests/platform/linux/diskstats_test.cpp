#include "platform/linux/diskstats.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(Diskstats, CountsSectorsOf512Bytes) {
    EXPECT_THAT(
        parseDiskstats(" 254       0 vda 74088 11769 4968506 43908 80297 14176 14407704 25948 0 41708 94547 "
                       "12444 33 11853416 24148 15960 542\n"
                       "   8       1 sda1 1 2 3 4 5 6 7\n"),
        ElementsAre(DiskCounters{"vda", "254:0", 4968506ULL * 512, 14407704ULL * 512},
                    DiskCounters{"sda1", "8:1", 3 * 512, 7 * 512}));
}

TEST(Diskstats, LeavesOutLinesThatAreCutOrNotNumbers) {
    EXPECT_THAT(parseDiskstats(""), IsEmpty());
    EXPECT_THAT(parseDiskstats("8 0 sda 1 2 3 4 5 6\n"), IsEmpty());
    EXPECT_THAT(parseDiskstats("8 0 sda 1 2 x 4 5 6 7\nsda 0 8\n\n8 0\n"), IsEmpty());
    EXPECT_THAT(parseDiskstats("8 0 sda 1 2 18446744073709551615 4 5 6 7\n"), IsEmpty());
}

} // namespace tarvo::linux_platform
