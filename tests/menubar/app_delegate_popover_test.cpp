#include "menubar/app_delegate_fixture.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

using namespace std::chrono_literals;

class MainPopoverOfDelegate : public AppDelegateTest {
protected:
    void clickItem(std::size_t index = 0) { bar.button(index).click(StatusClick::left); }
};

TEST_F(MainPopoverOfDelegate, OpensUnderTheClickedItemWithTheKeyboard) {
    useModularLayout();
    launch();
    clickItem(1);
    EXPECT_TRUE(popover().isShown());
    EXPECT_EQ(popover().anchor, &bar.button(1));
    EXPECT_TRUE(popover().isKey);
    EXPECT_EQ(application.log.back(), "activate");
    EXPECT_EQ(popover().contentNumber(), 1);
}

TEST_F(MainPopoverOfDelegate, OpensOnAClickByTheProgramToo) {
    launch();
    bar.button(0).performClick();
    EXPECT_TRUE(popover().isShown());
}

TEST_F(MainPopoverOfDelegate, ClosesOnASecondClickOnAnyItem) {
    useModularLayout();
    launch();
    clickItem(0);
    clickItem(1);
    EXPECT_FALSE(popover().isShown());
    EXPECT_EQ(popover().shows, 1);
}

TEST_F(MainPopoverOfDelegate, WantsTheDetailedReadingsWhileItIsOpen) {
    launch();
    tick();
    EXPECT_EQ(machine.processLists, 0);
    clickItem();
    EXPECT_TRUE(model->detailVisible());
    dispatcher.runAll();
    EXPECT_EQ(machine.processLists, 2) << "both lists at once";
    popover().close();
    EXPECT_FALSE(model->detailVisible());
}

TEST_F(MainPopoverOfDelegate, HasCommandShiftMForItsHotKey) {
    launch();
    ASSERT_EQ(hotKeys.keys.size(), 1u);
    EXPECT_EQ(hotKeys.keys.begin()->second, (RecordingHotKeys::Registered{46, 768, {0x534D686B, 1}}));
    delegate.reset();
    EXPECT_TRUE(hotKeys.keys.empty());
}

TEST_F(MainPopoverOfDelegate, TogglesByTheHotKeyUnderTheCombinedItem) {
    launch();
    hotKeys.press();
    EXPECT_TRUE(popover().isShown());
    EXPECT_EQ(popover().anchor, &bar.button(0));
    hotKeys.press();
    EXPECT_FALSE(popover().isShown());
}

TEST_F(MainPopoverOfDelegate, OpensByTheHotKeyUnderTheProcessorsItemInTheModularLayout) {
    useModularLayout();
    launch();
    hotKeys.press();
    EXPECT_EQ(popover().anchor, &bar.button(0));
    EXPECT_EQ(bar.button(0).symbol()->name, "cpu.fill");
}

TEST_F(MainPopoverOfDelegate, IgnoresTheHotKeyInAModularLayoutWithoutTheProcessor) {
    useModularLayout();
    set("menubar.cpu", false);
    launch();
    EXPECT_EQ(bar.size(), 1u);
    hotKeys.press();
    EXPECT_FALSE(popover().isShown());
    EXPECT_FALSE(model->detailVisible());
    EXPECT_EQ(contentsMade, 0);
}

TEST_F(MainPopoverOfDelegate, KeepsItsContentWhenReopenedTenSecondsAfterClosing) {
    launch();
    clickItem();
    clickItem();
    tick(10s);
    clickItem();
    EXPECT_EQ(contentsMade, 1);
    tick(60s);
    EXPECT_TRUE(popover().hasContent()) << "the pending release was cancelled";
}

TEST_F(MainPopoverOfDelegate, BuildsItsContentAnewWhenReopenedTwentyFiveSecondsAfterClosing) {
    launch();
    clickItem();
    clickItem();
    tick(25s);
    EXPECT_FALSE(popover().hasContent());
    clickItem();
    EXPECT_EQ(popover().contentNumber(), 2);
}

TEST_F(MainPopoverOfDelegate, ReleasesItsContentTwentySecondsAfterTheLastClosing) {
    launch();
    clickItem();
    clickItem();
    tick(15s);
    clickItem();
    clickItem();
    tick(19'999ms);
    EXPECT_TRUE(popover().hasContent()) << "the release of the first closing is stale";
    tick(1ms);
    EXPECT_FALSE(popover().hasContent());
}

TEST_F(MainPopoverOfDelegate, SurvivesThatTheDelegateGoesBeforeTheRelease) {
    launch();
    clickItem();
    clickItem();
    delegate.reset();
    tick(30s);
    EXPECT_EQ(contentsMade, 1);
}

TEST_F(MainPopoverOfDelegate, GivesFreedMemoryBackAfterTheContentWent) {
    int calls = 0;
    auto given = services();
    given.returnFreedMemory = [&calls] { ++calls; };
    launch(std::move(given));
    clickItem();
    clickItem();
    tick(20s);
    EXPECT_FALSE(popover().hasContent());
    EXPECT_EQ(calls, 0) << "it may still be going";
    tick(1s);
    EXPECT_EQ(calls, 1);
}

TEST_F(MainPopoverOfDelegate, LeavesTheDetailedReadingsToAnOpenDetailWindow) {
    launch();
    delegate->openDetailWindow();
    EXPECT_TRUE(model->detailVisible());
    clickItem();
    popover().close();
    EXPECT_TRUE(model->detailVisible());
    application.closeWindow();
    EXPECT_FALSE(model->detailVisible());
}

} // namespace
} // namespace tarvo
