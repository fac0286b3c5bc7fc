#include "platform/desktop/hot_key/key_repeat.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

TEST(KeyRepeat, TheFirstPressIsNew) {
    EXPECT_TRUE(KeyRepeat().isNewPress(58, 1000));
}

TEST(KeyRepeat, APressInTheMomentOfItsReleaseIsMadeUp) {
    KeyRepeat repeat;
    repeat.released(58, 1500);
    EXPECT_FALSE(repeat.isNewPress(58, 1500));
    repeat.released(58, 1530);
    EXPECT_FALSE(repeat.isNewPress(58, 1530));
}

TEST(KeyRepeat, ALaterPressIsNew) {
    KeyRepeat repeat;
    repeat.released(58, 1500);
    EXPECT_TRUE(repeat.isNewPress(58, 1501));
}

TEST(KeyRepeat, APressOfAnotherKeyIsNew) {
    KeyRepeat repeat;
    repeat.released(58, 1500);
    EXPECT_TRUE(repeat.isNewPress(59, 1500));
}

} // namespace
} // namespace tarvo::desktop
