#include "platform/desktop/bar/bar_item_geometry.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

TEST(BarItemGeometry, TheImageStandsLeftOfTheTitleAndBothInTheMiddleOfTheHeight) {
    const BarItemGeometry item = layoutBarItem({16, 16}, {30, 14}, 30, false, 26);
    EXPECT_EQ(item.image, QRectF(8, 5, 16, 16));
    EXPECT_EQ(item.title, QPointF(29, 6));
    EXPECT_EQ(item.width, 67);
}

TEST(BarItemGeometry, AnItemWithoutAnImageLeavesNoGapForOne) {
    const BarItemGeometry item = layoutBarItem({}, {30, 14}, 30, false, 26);
    EXPECT_TRUE(item.image.isEmpty());
    EXPECT_EQ(item.title.x(), 8);
    EXPECT_EQ(item.width, 46);
}

TEST(BarItemGeometry, AnItemWithoutATitleIsItsImageAndTheSides) {
    const BarItemGeometry item = layoutBarItem({34, 18}, {}, 0, false, 26);
    EXPECT_EQ(item.image, QRectF(8, 4, 34, 18));
    EXPECT_EQ(item.width, 50);
}

TEST(BarItemGeometry, KeepsTheReservedWidthAndStartsATitleAtItsLeft) {
    const BarItemGeometry item = layoutBarItem({}, {20, 14}, 36, false, 26);
    EXPECT_EQ(item.title.x(), 8);
    EXPECT_EQ(item.width, 52);
}

TEST(BarItemGeometry, ACentredTitleStandsInTheMiddleOfTheReservedWidth) {
    EXPECT_EQ(layoutBarItem({}, {20, 18}, 36, true, 26).title.x(), 16);
}

TEST(BarItemGeometry, AWidthOfPartsOfAPixelIsRoundedUp) {
    EXPECT_EQ(layoutBarItem({}, {20.2, 14}, 20.2, false, 26).width, 37);
}

} // namespace
} // namespace tarvo::desktop
