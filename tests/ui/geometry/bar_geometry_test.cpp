#include "ui/geometry/bar_geometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tarvo::ui {

TEST(CapacityBarWidth, FollowsTheFraction) {
    EXPECT_DOUBLE_EQ(capacityBarWidth(200, 0.25), 50);
    EXPECT_DOUBLE_EQ(capacityBarWidth(200, 1), 200);
}

TEST(CapacityBarWidth, IsNeverNarrowerThanFourPoints) {
    EXPECT_DOUBLE_EQ(capacityBarWidth(200, 0), 4);
    EXPECT_DOUBLE_EQ(capacityBarWidth(200, 0.01), 4);
    EXPECT_DOUBLE_EQ(capacityBarWidth(200, -3), 4);
}

TEST(CapacityBarWidth, IsNeverWiderThanItsTrack) {
    EXPECT_DOUBLE_EQ(capacityBarWidth(200, 1.7), 200);
}

TEST(TemperatureBarWidth, FollowsThePlaceOnTheScale) {
    EXPECT_DOUBLE_EQ(temperatureBarWidth(100, 60, 20, 100), 50);
    EXPECT_DOUBLE_EQ(temperatureBarWidth(100, 130, 20, 100), 100);
}

TEST(TemperatureBarWidth, IsFourPointsBelowTheScale) {
    EXPECT_DOUBLE_EQ(temperatureBarWidth(100, 5, 20, 100), 4);
}

TEST(TemperatureBarWidth, IsFourPointsOnAScaleWithoutExtent) {
    EXPECT_DOUBLE_EQ(temperatureBarWidth(100, 50, 40, 40), 4);
    EXPECT_DOUBLE_EQ(temperatureBarWidth(100, 50, 90, 30), 4);
}

} // namespace tarvo::ui
