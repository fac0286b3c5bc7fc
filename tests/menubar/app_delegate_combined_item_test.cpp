#include "menubar/app_delegate_fixture.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

class CombinedItem : public AppDelegateTest {
protected:
    RecordingStatusButton& button() { return bar.button(0); }
};

TEST_F(CombinedItem, ShowsProcessorAndMemoryOnAFreshInstallation) {
    launch();
    ASSERT_EQ(bar.size(), 1u);
    EXPECT_EQ(button().title, "CPU 12% · RAM 48%");
    EXPECT_EQ(button().toolTip, "CPU: 12%\nMemory: 48%");
    EXPECT_EQ(button().font, (TextFont{12, FontWeight::regular, true}));
    EXPECT_EQ(button().image, StatusImage());
    EXPECT_EQ(button().tint, std::nullopt);
}

TEST_F(CombinedItem, IsTheNameOfTheProgramWithEveryModuleDisabled) {
    set("menubar.cpu", false);
    set("menubar.mem", false);
    launch();
    EXPECT_EQ(button().title, "Tarvo");
    EXPECT_EQ(button().toolTip, "Tarvo");
}

TEST_F(CombinedItem, FollowsEachTick) {
    launch();
    machine.cpu.total = 77.7;
    tick();
    EXPECT_EQ(button().title, "CPU 78% · RAM 48%");
}

TEST_F(CombinedItem, ChangesNothingWhileTheReadingsStay) {
    launch();
    const int before = button().changes;
    tick(std::chrono::minutes(10));
    EXPECT_EQ(button().changes, before);
    machine.cpu.total = 13;
    tick();
    EXPECT_EQ(button().changes, before + 2) << "title and tool tip";
}

TEST_F(CombinedItem, ShowsNoBatteryOnAMachineWithoutOne) {
    set("menubar.battery", true);
    launch();
    EXPECT_EQ(button().title, "CPU 12% · RAM 48%");
    machine.battery = BatteryInfo{};
    machine.battery->percentage = 85;
    tick(std::chrono::seconds(10));
    EXPECT_EQ(button().title, "CPU 12% · RAM 48% · 🔋85%");
}

TEST_F(CombinedItem, ShowsTheGraphOfBothHistoriesInItsStyle) {
    set("menuBarStyle", std::int64_t{1});
    launch();
    tick();
    EXPECT_EQ(button().title, "");
    EXPECT_EQ(button().tint, std::nullopt);
    ASSERT_NE(button().drawing(), nullptr);
    ASSERT_EQ(button().drawing()->strokes.size(), 2u);
    EXPECT_EQ(button().drawing()->strokes[1].points.size(), 2u);
    EXPECT_NEAR(button().drawing()->strokes[1].points[0].x, 34.0 * 58 / 59, 1e-9);
    EXPECT_EQ(button().toolTip, "CPU: 12%\nMemory: 48%");
}

TEST_F(CombinedItem, ShowsATintedGaugeInTheIconStyle) {
    set("menuBarStyle", std::int64_t{2});
    machine.cpu.total = 20;
    machine.memory.memPercent = 60;
    launch();
    EXPECT_EQ(button().title, "");
    ASSERT_NE(button().symbol(), nullptr);
    EXPECT_EQ(*button().symbol(), (SymbolImage{"gauge.with.dots.needle.67percent", "Tarvo", true}));
    EXPECT_EQ(button().tint, SystemColor::orange);
    machine.memory.memPercent = 85;
    tick();
    EXPECT_EQ(button().tint, SystemColor::red);
    machine.memory.memPercent = 40;
    machine.cpu.total = 59.9;
    tick();
    EXPECT_EQ(button().tint, SystemColor::green);
}

TEST_F(CombinedItem, ShowsTextForAnyOtherStoredStyle) {
    set("menuBarStyle", std::int64_t{7});
    launch();
    EXPECT_EQ(button().title, "CPU 12% · RAM 48%");
}

TEST_F(CombinedItem, LosesImageAndTintWhenTheStyleGoesBackToText) {
    set("menuBarStyle", std::int64_t{2});
    launch();
    set("menuBarStyle", std::int64_t{0});
    tick();
    EXPECT_EQ(button().image, StatusImage());
    EXPECT_EQ(button().tint, std::nullopt);
    EXPECT_EQ(button().title, "CPU 12% · RAM 48%");
}

TEST_F(CombinedItem, IsMadeAnewWhenTheStyleChangeIsAnnounced) {
    launch();
    EXPECT_EQ(bar.made, 1);
    set("menuBarStyle", std::int64_t{2});
    announceStyleChange();
    EXPECT_EQ(bar.made, 2);
    ASSERT_EQ(bar.size(), 1u);
    EXPECT_EQ(button().tint, SystemColor::green) << "at once, without a tick";
}

TEST_F(CombinedItem, IsSkippedWithoutAButton) {
    bar.takesButtonsAway = true;
    launch();
    tick();
    EXPECT_EQ(bar.size(), 1u);
    EXPECT_EQ(button().changes, 0);
    hotKeys.press();
    EXPECT_FALSE(popover().isShown());
}

} // namespace
} // namespace tarvo
