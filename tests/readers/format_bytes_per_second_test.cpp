#include "readers/format_bytes_per_second.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(FormatBytesPerSecond, UsesTheLargestUnitThatStaysBelow1024) {
    EXPECT_EQ(formatBytesPerSecond(0), "0.0 B/s");
    EXPECT_EQ(formatBytesPerSecond(1023), "1023.0 B/s");
    EXPECT_EQ(formatBytesPerSecond(1536), "1.5 KB/s");
    EXPECT_EQ(formatBytesPerSecond(12'582'912), "12.0 MB/s");
    EXPECT_EQ(formatBytesPerSecond(3'221'225'472), "3.0 GB/s");
}

TEST(FormatBytesPerSecond, GoesToTheNextUnitAtExactly1024) {
    EXPECT_EQ(formatBytesPerSecond(1024), "1.0 KB/s");
    EXPECT_EQ(formatBytesPerSecond(1'048'576), "1.0 MB/s");
    EXPECT_EQ(formatBytesPerSecond(1'073'741'824), "1.0 GB/s");
}

TEST(FormatBytesPerSecond, ChoosesTheUnitBeforeRounding) {
    EXPECT_EQ(formatBytesPerSecond(1023.99), "1024.0 B/s");
    EXPECT_EQ(formatBytesPerSecond(1'048'575), "1024.0 KB/s");
}

TEST(FormatBytesPerSecond, HasNoUnitAboveGigabytes) {
    EXPECT_EQ(formatBytesPerSecond(5.0 * 1024 * 1024 * 1024 * 1024), "5120.0 GB/s");
}

} // namespace tarvo
