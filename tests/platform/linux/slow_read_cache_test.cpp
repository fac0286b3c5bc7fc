#include "platform/linux/slow_read_cache.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr SteadyTime start{std::chrono::hours(1)};

TEST(SlowReadCache, AFastDeviceIsAlwaysAsked) {
    SlowReadCache cache;
    for (int i = 0; i < 5; ++i) {
        cache.noteReading(start, start + milliseconds(50), 1.0);
        EXPECT_EQ(cache.served(start + milliseconds(51)), std::nullopt);
    }
}

TEST(SlowReadCache, ASingleSlowReadingIsForgiven) {
    SlowReadCache cache;
    cache.noteReading(start, start + milliseconds(51), 1.0);
    EXPECT_EQ(cache.served(start + milliseconds(52)), std::nullopt);
}

TEST(SlowReadCache, AfterTwoSlowReadingsTheDeviceIsSparedForTenSeconds) {
    SlowReadCache cache;
    cache.noteReading(start, start + milliseconds(51), 1.0);
    cache.noteReading(start, start + milliseconds(60), 2.0);
    const auto read = start + milliseconds(60);
    EXPECT_EQ(cache.served(read + milliseconds(9999)).value(), 2.0);
    EXPECT_EQ(cache.served(read + seconds(10)), std::nullopt);
    cache.noteReading(read + seconds(10), read + seconds(10), 3.0);
    EXPECT_EQ(cache.served(read + seconds(11)).value(), 3.0) << "a fast reading does not lift it";
}

TEST(SlowReadCache, AFailureIsServedToo) {
    SlowReadCache cache;
    cache.noteReading(start, start + seconds(1), 1.0);
    cache.noteReading(start, start + seconds(1), std::nullopt);
    const auto served = cache.served(start + seconds(2));
    ASSERT_TRUE(served.has_value());
    EXPECT_EQ(*served, std::nullopt);
}

} // namespace
} // namespace tarvo::linux_platform
