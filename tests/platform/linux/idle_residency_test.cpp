#include "platform/linux/idle_residency.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

using namespace std::chrono_literals;

TEST(IdleResidency, IsTheAwakeShareOfTheMostAwakePart) {
    IdleResidency residency;
    const SteadyTime start{1h};
    EXPECT_EQ(residency.sample({{"gt0", 5000}, {"gt1", 100}}, start), std::nullopt);
    EXPECT_DOUBLE_EQ(residency.sample({{"gt0", 6500}, {"gt1", 600}}, start + 2s).value(), 75);
    EXPECT_DOUBLE_EQ(residency.sample({{"gt0", 8500}, {"gt1", 2600}}, start + 4s).value(), 0);
}

TEST(IdleResidency, StaysBetweenZeroAndAHundred) {
    IdleResidency residency;
    const SteadyTime start{1h};
    residency.sample({{"gt0", 5000}}, start);
    EXPECT_DOUBLE_EQ(residency.sample({{"gt0", 9000}}, start + 1s).value(), 0);
    EXPECT_DOUBLE_EQ(residency.sample({{"gt0", 10}}, start + 2s).value(), 100);
}

TEST(IdleResidency, IsAbsentWithoutPartsOrTime) {
    IdleResidency residency;
    const SteadyTime start{1h};
    EXPECT_EQ(residency.sample({}, start), std::nullopt);
    residency.sample({{"gt0", 0}}, start + 1s);
    EXPECT_EQ(residency.sample({{"gt0", 0}}, start + 1s), std::nullopt);
    EXPECT_EQ(residency.sample({{"gt1", 0}}, start + 2s), std::nullopt);
}

} // namespace tarvo::linux_platform
