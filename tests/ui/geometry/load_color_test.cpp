#include "ui/geometry/load_color.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(LoadColor, IsGreenBelowSixty) {
    EXPECT_EQ(loadColor(0), colors::green);
    EXPECT_EQ(loadColor(59.999), colors::green);
}

TEST(LoadColor, IsOrangeFromExactlySixty) {
    EXPECT_EQ(loadColor(60), colors::orange);
    EXPECT_EQ(loadColor(84.999), colors::orange);
}

TEST(LoadColor, IsRedFromExactlyEightyFive) {
    EXPECT_EQ(loadColor(85), colors::red);
    EXPECT_EQ(loadColor(150), colors::red);
}

TEST(TemperatureColor, TakesTheWarmerBandAtEachBorder) {
    EXPECT_EQ(temperatureColor(45), colors::green);
    EXPECT_EQ(temperatureColor(60), colors::yellow);
    EXPECT_EQ(temperatureColor(75), colors::orange);
    EXPECT_EQ(temperatureColor(90), colors::red);
}

TEST(TemperatureColor, KeepsTheCoolerBandBelowEachBorder) {
    EXPECT_EQ(temperatureColor(44.99), colors::blue);
    EXPECT_EQ(temperatureColor(59.99), colors::green);
    EXPECT_EQ(temperatureColor(74.99), colors::yellow);
    EXPECT_EQ(temperatureColor(89.99), colors::orange);
    EXPECT_EQ(temperatureColor(-40), colors::blue);
}

} // namespace tarvo::ui
