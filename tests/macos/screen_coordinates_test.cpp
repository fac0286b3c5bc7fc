#include "platform/macos/screen_coordinates.h"

#include <gtest/gtest.h>

namespace tarvo::macos_platform {
namespace {

TEST(ScreenCoordinates, AnItemInTheBarOfTheFirstScreenLiesAtItsTop) {
    EXPECT_EQ(fromTop({1200, 876, 90, 24}, 900), (Rect{1200, 0, 90, 24}));
}

TEST(ScreenCoordinates, AScreenBelowTheFirstOneHasTheGreaterNumbers) {
    EXPECT_EQ(fromTop({0, -1080, 1920, 1080}, 900), (Rect{0, 900, 1920, 1080}));
}

TEST(ScreenCoordinates, AScreenAboveTheFirstOneHasNegativeNumbers) {
    EXPECT_EQ(fromTop({-300, 1956, 90, 24}, 900), (Rect{-300, -1080, 90, 24}));
}

} // namespace
} // namespace tarvo::macos_platform
