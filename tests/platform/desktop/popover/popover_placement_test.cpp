#include "platform/desktop/popover/popover_placement.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvo::desktop {
namespace {

const QRect area(0, 26, 1280, 694);
constexpr QSize panel(360, 500);

TEST(PopoverPlacement, HangsBelowItsAnchorCentredOnIt) {
    const QRect placed = placePopover({600, 0, 80, 26}, panel, area);
    EXPECT_EQ(placed, QRect(460, 26 + popoverGap, 360, 500));
}

TEST(PopoverPlacement, StaysInsideTheScreenAtEitherSide) {
    EXPECT_EQ(placePopover({1200, 0, 80, 26}, panel, area).right(), 1279 - popoverGap);
    EXPECT_EQ(placePopover({0, 0, 80, 26}, panel, area).left(), popoverGap);
}

TEST(PopoverPlacement, StandsAboveAnAnchorAtTheBottom) {
    const QRect placed = placePopover({600, 694, 80, 26}, panel, {0, 0, 1280, 694});
    EXPECT_EQ(placed.bottom() + 1, 694 - popoverGap);
    EXPECT_EQ(placed.height(), 500);
}

TEST(PopoverPlacement, IsNoHigherThanTheRoomThereIs) {
    const QRect placed = placePopover({600, 0, 80, 26}, {360, 2000}, area);
    EXPECT_EQ(placed.top(), 26 + popoverGap);
    EXPECT_EQ(placed.bottom(), 719 - popoverGap);
}

TEST(PopoverPlacement, TakesTheSideWithMoreRoomWhenItFitsNeither) {
    const QRect placed = placePopover({600, 500, 80, 26}, {360, 2000}, area);
    EXPECT_LT(placed.bottom(), 500);
    EXPECT_GE(placed.top(), 26);
}

TEST(PopoverPlacement, KeepsToAScreenThatIsNotTheFirst) {
    const QRect second(1280, 0, 1920, 1080);
    const QRect placed = placePopover({3100, 0, 60, 26}, panel, second);
    EXPECT_TRUE(second.contains(placed));
}

TEST(PopoverPlacement, IsNarrowerThanAScreenThatIsNarrower) {
    const QRect placed = placePopover({10, 0, 20, 26}, panel, {0, 0, 320, 480});
    EXPECT_EQ(placed.width(), 320 - 2 * popoverGap);
}

} // namespace
} // namespace tarvo::desktop
