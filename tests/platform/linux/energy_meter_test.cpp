#include "platform/linux/energy_meter.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {
namespace {

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

constexpr SteadyTime start{std::chrono::hours(1)};

TEST(EnergyMeter, NeedsTwoReadings) {
    EnergyMeter meter(1'000'000'000);
    EXPECT_EQ(meter.watts(5'000'000, start), std::nullopt);
    EXPECT_DOUBLE_EQ(meter.watts(29'000'000, start + seconds(2)).value(), 12);
    EXPECT_DOUBLE_EQ(meter.watts(29'500'000, start + milliseconds(2500)).value(), 1);
}

TEST(EnergyMeter, TwoReadingsAtOneMomentTellNothing) {
    EnergyMeter meter(1'000'000'000);
    meter.watts(5, start);
    EXPECT_EQ(meter.watts(6, start), std::nullopt);
    EXPECT_EQ(meter.watts(7, start - seconds(1)), std::nullopt);
}

TEST(EnergyMeter, ACounterThatStartedAnewCountsOnFromItsRange) {
    EnergyMeter meter(100'000'000);
    meter.watts(98'000'000, start);
    EXPECT_DOUBLE_EQ(meter.watts(6'000'000, start + seconds(1)).value(), 8);
}

TEST(EnergyMeter, ACounterThatWentBackWithoutKnownRangeTellsNothing) {
    EnergyMeter meter(0);
    meter.watts(98'000'000, start);
    EXPECT_EQ(meter.watts(6'000'000, start + seconds(1)), std::nullopt);
    EXPECT_DOUBLE_EQ(meter.watts(9'000'000, start + seconds(2)).value(), 3);
}

TEST(EnergyMeter, AfterALongPauseItStartsAfresh) {
    EnergyMeter meter(100'000'000);
    meter.watts(1'000'000, start);
    EXPECT_EQ(meter.watts(2'000'000, start + minutes(5) + milliseconds(1)), std::nullopt);
    EXPECT_DOUBLE_EQ(meter.watts(4'000'000, start + minutes(5) + milliseconds(1001)).value(), 2);
}

} // namespace
} // namespace tarvo::linux_platform
