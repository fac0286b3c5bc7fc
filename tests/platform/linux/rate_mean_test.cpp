#include "platform/linux/rate_mean.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

TEST(RateMean, OfOneRateIsThatRate) {
    RateMean mean;
    EXPECT_EQ(mean.mean(), std::nullopt);
    mean.add("a", 8);
    EXPECT_EQ(mean.mean(), 8.0);
}

TEST(RateMean, IsTakenOverTheLastSix) {
    RateMean mean;
    mean.add("a", 1000);
    for (int rate = 1; rate <= 6; ++rate)
        mean.add("a", rate);
    EXPECT_EQ(mean.mean(), 3.5);
}

TEST(RateMean, AnotherKindBeginsAnew) {
    RateMean mean;
    mean.add("a", 8);
    mean.add("b", 2);
    EXPECT_EQ(mean.mean(), 2.0);
    mean.add("a", 0);
    EXPECT_EQ(mean.mean(), std::nullopt);
}

TEST(RateMean, ARateOfZeroIsNoRate) {
    RateMean mean;
    mean.add("a", 8);
    mean.add("a", 0);
    EXPECT_EQ(mean.mean(), 8.0);
}

} // namespace
} // namespace tarvo::linux_platform
