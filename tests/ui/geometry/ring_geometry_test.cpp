#include "ui/geometry/ring_geometry.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(RingFraction, IsADotAtZero) {
    EXPECT_DOUBLE_EQ(ringFraction(0), 0.001);
    EXPECT_DOUBLE_EQ(ringFraction(-20), 0.001);
}

TEST(RingFraction, FollowsThePercentage) {
    EXPECT_DOUBLE_EQ(ringFraction(25), 0.25);
}

TEST(RingFraction, IsAFullRingFromOneHundred) {
    EXPECT_DOUBLE_EQ(ringFraction(100), 1);
    EXPECT_DOUBLE_EQ(ringFraction(150), 1);
}

TEST(RingText, RoundsToTheNearestInteger) {
    EXPECT_EQ(ringText(41.4), "41%");
    EXPECT_EQ(ringText(41.5), "42%");
    EXPECT_EQ(ringText(42.5), "43%");
}

TEST(RingText, IsNotClamped) {
    EXPECT_EQ(ringText(150), "150%");
}

TEST(RingText, NeverReadsMinusZero) {
    EXPECT_EQ(ringText(-0.4), "0%");
}

} // namespace tarvo::ui
