#include "menubar/app_delegate_fixture.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class HoverPreviewOfDelegate : public AppDelegateTest {
protected:
    HoverPreviewOfDelegate() { useModularLayout(); }

    void launchWithPlaces() {
        launch();
        place();
    }
    void place() {
        for (std::size_t i = 0; i < bar.size(); ++i) {
            bar.button(i).rect = Rect{100.0 * static_cast<double>(i), 0, 100, 24};
        }
    }
    void hover(double x, double y = 10) {
        pointer = Point{x, y};
        tick(120ms);
    }
};

TEST_F(HoverPreviewOfDelegate, ShowsTheModuleUnderThePointer) {
    launchWithPlaces();
    hover(50);
    EXPECT_TRUE(preview().isShown());
    EXPECT_EQ(preview().anchor, &bar.button(0));
    EXPECT_THAT(previewModules, ElementsAre(MenuBarModule::cpu));
    EXPECT_FALSE(model->detailVisible());
}

TEST_F(HoverPreviewOfDelegate, StaysAsItIsWhileThePointerStays) {
    launchWithPlaces();
    hover(50);
    hover(51);
    tick(2s);
    EXPECT_EQ(preview().shows, 1);
    EXPECT_EQ(previewModules.size(), 1u);
}

TEST_F(HoverPreviewOfDelegate, SwitchesFromItemToItemWithinOnePoll) {
    launchWithPlaces();
    hover(50);
    hover(150);
    EXPECT_THAT(previewModules, ElementsAre(MenuBarModule::cpu, MenuBarModule::mem));
    EXPECT_EQ(preview().anchor, &bar.button(1));
    EXPECT_TRUE(preview().isShown());
}

TEST_F(HoverPreviewOfDelegate, ClosesWhenThePointerLeaves) {
    launchWithPlaces();
    hover(50);
    hover(50, 24);
    EXPECT_FALSE(preview().isShown());
    EXPECT_FALSE(preview().hasContent());
    hover(50);
    EXPECT_EQ(preview().shows, 2);
}

TEST_F(HoverPreviewOfDelegate, ClosesWhenThePointerIsNoLongerKnown) {
    launchWithPlaces();
    hover(50);
    pointer = std::nullopt;
    tick(120ms);
    EXPECT_FALSE(preview().isShown());
}

TEST_F(HoverPreviewOfDelegate, NeedsThePlacesOfTheItems) {
    launch();
    hover(50);
    EXPECT_FALSE(preview().isShown());
    EXPECT_TRUE(previewModules.empty());
}

TEST_F(HoverPreviewOfDelegate, ClosesOnAClickAndStaysClosedWhileThePopoverIsOpen) {
    launchWithPlaces();
    hover(50);
    bar.button(0).click(StatusClick::left);
    EXPECT_FALSE(preview().isShown());
    EXPECT_FALSE(preview().hasContent());
    EXPECT_TRUE(popover().isShown());
    hover(60);
    EXPECT_FALSE(preview().isShown());
    popover().close();
    hover(60);
    EXPECT_TRUE(preview().isShown());
}

TEST_F(HoverPreviewOfDelegate, ClosesWhenTheHotKeyOpensThePopover) {
    launchWithPlaces();
    hover(50);
    hotKeys.press();
    tick(120ms);
    EXPECT_TRUE(popover().isShown());
    EXPECT_FALSE(preview().isShown());
}

TEST_F(HoverPreviewOfDelegate, EndsWithItsTimerWhenTheLayoutIsNoLongerModular) {
    launchWithPlaces();
    hover(50);
    EXPECT_EQ(dispatcher.activeTimers(), 2u);
    set("modularMenuBar", false);
    announceStyleChange();
    EXPECT_FALSE(preview().isShown());
    EXPECT_FALSE(preview().hasContent());
    EXPECT_EQ(dispatcher.activeTimers(), 1u);
}

TEST_F(HoverPreviewOfDelegate, IsPolledByOneTimerHoweverOftenTheStyleChanges) {
    launch();
    for (int i = 0; i < 5; ++i)
        announceStyleChange();
    EXPECT_EQ(dispatcher.activeTimers(), 2u);
}

TEST_F(HoverPreviewOfDelegate, GoesOnOverItemsThatWereRebuiltUnderIt) {
    launchWithPlaces();
    hover(150);
    set("menubar.cpu", false);
    announceStyleChange();
    hover(150);
    EXPECT_FALSE(preview().isShown()) << "nothing known there any more";
    place();
    hover(50);
    EXPECT_THAT(previewModules, ElementsAre(MenuBarModule::mem, MenuBarModule::mem));
}

TEST_F(HoverPreviewOfDelegate, IsNotPolledWhereTheBarNeverTellsPlaces) {
    bar.placesKnown = false;
    launch();
    EXPECT_EQ(dispatcher.activeTimers(), 1u);
}

} // namespace
} // namespace tarvo
