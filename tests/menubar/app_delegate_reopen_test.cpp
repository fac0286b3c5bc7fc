#include "menubar/app_delegate_fixture.h"

namespace tarvo {
namespace {

/// What starting the program once more does.
class Reopening : public AppDelegateTest {};

TEST_F(Reopening, OpensThePopoverUnderTheCombinedItem) {
    launch();
    delegate->reopen();
    EXPECT_TRUE(popover().isShown());
    EXPECT_EQ(popover().anchor, &bar.button(0));
}

TEST_F(Reopening, LeavesAnOpenPopoverOpen) {
    launch();
    delegate->reopen();
    delegate->reopen();
    EXPECT_TRUE(popover().isShown());
    EXPECT_EQ(contentsMade, 1);
}

TEST_F(Reopening, TakesTheProcessorsItemInTheModularLayout) {
    useModularLayout();
    launch();
    delegate->reopen();
    EXPECT_EQ(popover().anchor, &bar.button(0));
    EXPECT_EQ(bar.button(0).symbol()->name, "cpu.fill");
}

TEST_F(Reopening, TakesAnyItemWithoutThatOfTheProcessor) {
    useModularLayout();
    set("menubar.cpu", false);
    launch();
    ASSERT_EQ(bar.size(), 1u);
    delegate->reopen();
    EXPECT_TRUE(popover().isShown());
    EXPECT_EQ(popover().anchor, &bar.button(0));
}

TEST_F(Reopening, OpensTheDetailWindowWhereThereIsNoItem) {
    useModularLayout();
    set("menubar.cpu", false);
    set("menubar.mem", false);
    launch();
    ASSERT_EQ(bar.size(), 0u);
    delegate->reopen();
    EXPECT_FALSE(popover().isShown());
    EXPECT_EQ(application.windows.size(), 1u);
}

} // namespace
} // namespace tarvo
