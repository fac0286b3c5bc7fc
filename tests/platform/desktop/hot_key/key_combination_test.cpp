#include "platform/desktop/hot_key/key_combination.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

TEST(KeyCombinationOfCarbon, HasTheLogoKeyForCommand) {
    EXPECT_EQ(keyCombination(46, 768),
              (KeyCombination{.letter = U'm', .usualKeyCode = 58, .logo = true, .shift = true}));
}

TEST(KeyCombinationOfCarbon, KnowsEveryModifier) {
    EXPECT_EQ(keyCombination(46, 0), (KeyCombination{.letter = U'm', .usualKeyCode = 58}));
    EXPECT_EQ(keyCombination(46, 2048), (KeyCombination{.letter = U'm', .usualKeyCode = 58, .alt = true}));
    EXPECT_EQ(keyCombination(46, 4096),
              (KeyCombination{.letter = U'm', .usualKeyCode = 58, .control = true}));
}

TEST(KeyCombinationOfCarbon, IsAbsentForKeysThatAreNotUsed) {
    EXPECT_FALSE(keyCombination(0, 768));
    EXPECT_FALSE(keyCombination(0xffffffff, 768));
}

} // namespace
} // namespace tarvo::desktop
