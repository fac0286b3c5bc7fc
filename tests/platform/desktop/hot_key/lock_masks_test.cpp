#include "platform/desktop/hot_key/lock_masks.h"

#include <gmock/gmock.h>

#include <vector>

namespace tarvo::desktop {
namespace {

using testing::ElementsAre;

// Two keys a modifier: shift, lock, control, mod1 to mod5.
const std::vector<std::uint8_t> table{50, 62, 66, 0, 37, 105, 64, 204, 77, 0, 0, 203, 133, 134, 92, 203};

TEST(LockMasks, FindTheModifierThatAKeyIsOn) {
    EXPECT_EQ(modifierOfKeys(table, 2, std::vector<std::uint8_t>{77}), 1U << 4U);
    EXPECT_EQ(modifierOfKeys(table, 2, std::vector<std::uint8_t>{1, 134}), 1U << 6U);
    EXPECT_EQ(modifierOfKeys(table, 2, std::vector<std::uint8_t>{50}), 1U << 0U);
}

TEST(LockMasks, TakeAnEmptyPlaceForNoKey) {
    EXPECT_EQ(modifierOfKeys(table, 2, std::vector<std::uint8_t>{0}), 0U);
    EXPECT_EQ(modifierOfKeys(table, 2, {}), 0U);
    EXPECT_EQ(modifierOfKeys(table, 2, std::vector<std::uint8_t>{99}), 0U);
    EXPECT_EQ(modifierOfKeys({}, 0, std::vector<std::uint8_t>{77}), 0U);
}

TEST(LockMasks, AreEveryStateOfBothLocks) {
    EXPECT_THAT(lockMasks(16), ElementsAre(0, 2, 16, 18));
    EXPECT_THAT(lockMasks(0), ElementsAre(0, 2, 0, 2));
}

} // namespace
} // namespace tarvo::desktop
