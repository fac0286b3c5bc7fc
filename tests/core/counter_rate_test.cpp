#include "core/counter_rate.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(CounterRate, IsTheAdvanceASecond) {
    EXPECT_EQ(counterRate(3'000, 1'000, Seconds{2}), 1'000.0);
    EXPECT_EQ(counterRate(5, 5, Seconds{2}), 0.0);
}

TEST(CounterRate, ElapsedTimeIsAtLeastAMillisecond) {
    EXPECT_EQ(counterRate(10, 0, Seconds{0}), 10'000.0);
    EXPECT_EQ(counterRate(10, 0, Seconds{0.0001}), 10'000.0);
    EXPECT_EQ(counterRate(10, 0, Seconds{-5}), 10'000.0);
}

TEST(CounterRate, ACounterThatWentBackwardsGivesAVeryLargeRate) {
    EXPECT_EQ(counterRate(0, 1, Seconds{1}), 18'446'744'073'709'551'615.0);
    EXPECT_GT(counterRate(0, 1'000'000'000, Seconds{2}), 9e18);
}

TEST(CounterRate, ACounterThatWrappedGoesOnWithoutAJump) {
    EXPECT_EQ(counterRate(4, UINT64_MAX - 5, Seconds{1}), 10.0);
}

} // namespace
} // namespace tarvo
