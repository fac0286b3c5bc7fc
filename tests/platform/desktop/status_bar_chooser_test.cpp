#include "platform/desktop/status_bar_chooser.h"

#include "support/fake_tray_watcher.h"
#include "support/manual_dispatcher.h"
#include "support/recording_status_bar_host.h"

#include <gmock/gmock.h>

namespace tarvo::desktop {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;
using testing::IsEmpty;

class StatusBarChooserTest : public testing::Test {
protected:
    std::unique_ptr<StatusBarChooser> makeChooser() {
        StatusBarHosts hosts{
            .makeBar = [this] { return std::make_unique<RecordingStatusBarHost>("bar", log); },
            .makeTray =
                [this](const std::string& process) {
                    return std::make_unique<RecordingStatusBarHost>("tray:" + process, log);
                }};
        auto chooser = std::make_unique<StatusBarChooser>(watcher, std::move(hosts), dispatcher,
                                                          [this] { return wish; });
        chooser->hostChanged = [this] { ++moves; };
        return chooser;
    }
    static std::unique_ptr<StatusItem> makeItem(StatusBarChooser& chooser, const std::string& title) {
        auto item = chooser.makeItem();
        item->button()->setTitle(title);
        return item;
    }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    FakeTrayWatcher watcher;
    StatusBarWish wish = StatusBarWish::automatic;
    RecordingStatusBarHost::Log log;
    int moves = 0;
};

TEST_F(StatusBarChooserTest, ItemsWaitUntilTheDesktopHasAnswered) {
    const auto chooser = makeChooser();
    const auto item = makeItem(*chooser, "A");
    EXPECT_THAT(log, IsEmpty());
    EXPECT_EQ(chooser->kind(), StatusBarKind::none);
    watcher.become(TrayState::present, "waybar");
    EXPECT_THAT(log, ElementsAre("tray:waybar add [A]"));
}

TEST_F(StatusBarChooserTest, ADesktopThatDoesNotAnswerCountsAsOneWithoutATray) {
    const auto chooser = makeChooser();
    const auto item = makeItem(*chooser, "A");
    dispatcher.advance(StatusBarChooser::answerTimeout - 1ms);
    EXPECT_THAT(log, IsEmpty());
    dispatcher.advance(1ms);
    EXPECT_THAT(log, ElementsAre("bar add [A]"));
}

TEST_F(StatusBarChooserTest, AKnownDesktopNeedsNoWaiting) {
    watcher.become(TrayState::absent);
    const auto chooser = makeChooser();
    EXPECT_EQ(chooser->kind(), StatusBarKind::bar);
    EXPECT_TRUE(chooser->tellsPlaces());
    EXPECT_EQ(dispatcher.activeTimers(), 0U);
}

TEST_F(StatusBarChooserTest, ItemsMoveInTheirOrderWhenATrayAppears) {
    watcher.become(TrayState::absent);
    const auto chooser = makeChooser();
    const auto first = makeItem(*chooser, "A");
    const auto second = makeItem(*chooser, "B");
    log.clear();
    watcher.become(TrayState::present, "panel");
    EXPECT_THAT(log, ElementsAre("bar remove", "tray:panel add [A]", "bar remove", "tray:panel add [B]"));
    EXPECT_EQ(moves, 1);
    EXPECT_FALSE(chooser->tellsPlaces());
}

TEST_F(StatusBarChooserTest, ItemsStayWhenATrayOnlyRestarts) {
    watcher.become(TrayState::present, "panel");
    const auto chooser = makeChooser();
    const auto item = makeItem(*chooser, "A");
    log.clear();
    watcher.become(TrayState::absent);
    dispatcher.advance(StatusBarChooser::vanishedGrace - 1ms);
    watcher.become(TrayState::present, "panel");
    dispatcher.advance(1min);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(StatusBarChooserTest, ItemsComeToTheBarWhenATrayStaysAway) {
    watcher.become(TrayState::present, "panel");
    const auto chooser = makeChooser();
    const auto item = makeItem(*chooser, "A");
    log.clear();
    watcher.become(TrayState::absent);
    dispatcher.advance(StatusBarChooser::vanishedGrace);
    EXPECT_THAT(log, ElementsAre("tray:panel remove", "bar add [A]"));
}

TEST_F(StatusBarChooserTest, AnotherTrayIsDrawnForAnew) {
    watcher.become(TrayState::present, "panel");
    const auto chooser = makeChooser();
    const auto item = makeItem(*chooser, "A");
    log.clear();
    watcher.become(TrayState::present, "waybar");
    EXPECT_THAT(log, ElementsAre("tray:panel remove", "tray:waybar add [A]"));
}

TEST_F(StatusBarChooserTest, AWishForTheBarHoldsAgainstATray) {
    wish = StatusBarWish::bar;
    watcher.become(TrayState::present, "panel");
    const auto chooser = makeChooser();
    EXPECT_EQ(chooser->kind(), StatusBarKind::bar);
}

TEST_F(StatusBarChooserTest, AChangedWishMovesTheItems) {
    watcher.become(TrayState::present, "panel");
    const auto chooser = makeChooser();
    const auto item = makeItem(*chooser, "A");
    log.clear();
    wish = StatusBarWish::bar;
    chooser->wishChanged();
    EXPECT_THAT(log, ElementsAre("tray:panel remove", "bar add [A]"));
    chooser->wishChanged();
    EXPECT_EQ(log.size(), 2U);
}

TEST_F(StatusBarChooserTest, ARemovedItemDoesNotMove) {
    watcher.become(TrayState::absent);
    const auto chooser = makeChooser();
    const auto kept = makeItem(*chooser, "A");
    makeItem(*chooser, "B").reset();
    log.clear();
    watcher.become(TrayState::present, "panel");
    EXPECT_THAT(log, ElementsAre("bar remove", "tray:panel add [A]"));
}

TEST_F(StatusBarChooserTest, AHostThatCannotBeMadeShowsNothing) {
    watcher.become(TrayState::absent);
    StatusBarChooser chooser(watcher, {.makeBar = [] { return nullptr; }, .makeTray = {}}, dispatcher,
                             [] { return StatusBarWish::automatic; });
    const auto item = makeItem(chooser, "A");
    EXPECT_FALSE(item->button()->screenRect().has_value());
}

TEST_F(StatusBarChooserTest, MayEndBeforeItsTimersDo) {
    makeChooser().reset();
    dispatcher.advance(1min);
    watcher.become(TrayState::present, "panel");
    EXPECT_THAT(log, IsEmpty());
}

} // namespace
} // namespace tarvo::desktop
