#include "platform/desktop/status_bar_choice.h"

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

TEST(StatusBarChoice, TheDesktopsTrayComesFirst) {
    EXPECT_EQ(chooseStatusBar(StatusBarWish::automatic, TrayState::present), StatusBarKind::tray);
}

TEST(StatusBarChoice, WithoutATrayTheItemsStandOnTheBar) {
    EXPECT_EQ(chooseStatusBar(StatusBarWish::automatic, TrayState::absent), StatusBarKind::bar);
}

TEST(StatusBarChoice, ShowsNothingUntilTheDesktopHasAnswered) {
    EXPECT_EQ(chooseStatusBar(StatusBarWish::automatic, TrayState::unknown), StatusBarKind::none);
}

TEST(StatusBarChoice, AWishHoldsWhateverTheDesktopHas) {
    for (const TrayState tray : {TrayState::unknown, TrayState::absent, TrayState::present}) {
        EXPECT_EQ(chooseStatusBar(StatusBarWish::bar, tray), StatusBarKind::bar);
        EXPECT_EQ(chooseStatusBar(StatusBarWish::tray, tray), StatusBarKind::tray);
    }
}

TEST(StatusBarChoice, ReadsWishesByTheirExactWords) {
    EXPECT_EQ(statusBarWish("auto"), StatusBarWish::automatic);
    EXPECT_EQ(statusBarWish("tray"), StatusBarWish::tray);
    EXPECT_EQ(statusBarWish("bar"), StatusBarWish::bar);
    EXPECT_EQ(statusBarWish("Bar"), std::nullopt);
    EXPECT_EQ(statusBarWish(""), std::nullopt);
}

} // namespace
} // namespace tarvo::desktop
