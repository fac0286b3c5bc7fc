#include "actions/quick_actions.h"

#include "actions/apple_script.h"
#include "support/memory_preference_store.h"
#include "support/recording_process_control.h"
#include "support/scripted_desktop_actions.h"
#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace tarvo {
namespace {

class QuickActionsTest : public testing::Test {
protected:
    std::vector<std::string> labels() const {
        std::vector<std::string> shown;
        for (const auto& tile : actions.tiles())
            shown.push_back(tile.label);
        return shown;
    }

    MemoryPreferenceStore preferences;
    LocalizationManager localization{preferences, "en"};
    ScriptedDesktopActions desktop;
    ScriptedDialogs dialogs;
    RecordingProcessControl processes;
    int refreshes = 0;
    QuickActions actions{desktop, dialogs, processes, localization, [this] { ++refreshes; }};
};

TEST_F(QuickActionsTest, StandInTheCardsOrderWithTheirSymbolsAndColours) {
    const auto tiles = actions.tiles();
    ASSERT_EQ(tiles.size(), 6U);
    EXPECT_EQ(labels(),
              (std::vector<std::string>{"Trash", "Finder", "Dock", "Display", "Dark Mode", "New Window"}));
    EXPECT_EQ(tiles[0].icon, "trash.fill");
    EXPECT_EQ(tiles[2].icon, "arrow.clockwise");
    EXPECT_EQ(tiles[2].color, ActionColor::indigo);
    EXPECT_EQ(tiles[5].icon, "macwindow.badge.plus");
    EXPECT_EQ(tiles[5].color, ActionColor::teal);
}

TEST_F(QuickActionsTest, SpeakCzech) {
    localization.setLanguage(AppLanguage::cs);
    EXPECT_EQ(labels(),
              (std::vector<std::string>{"Koš", "Finder", "Dock", "Displej", "Tmavý režim", "Nové okno"}));
}

TEST_F(QuickActionsTest, NameWhatTheyRestartByOtherWordsOnOtherSystems) {
    desktop.systemFamily = SystemFamily::other;
    EXPECT_EQ(labels(),
              (std::vector<std::string>{"Trash", "Files", "Panel", "Display", "Dark Mode", "New Window"}));
    localization.setLanguage(AppLanguage::cs);
    EXPECT_EQ(labels()[1], "Soubory");
}

TEST_F(QuickActionsTest, LeaveOutWhatTheDesktopCannotDo) {
    desktop.impossible = {QuickAction::restartDock, QuickAction::toggleDarkMode};
    EXPECT_EQ(labels(), (std::vector<std::string>{"Trash", "Finder", "Display", "New Window"}));
}

TEST_F(QuickActionsTest, AskBeforeTheTrashIsEmptied) {
    actions.trigger(QuickAction::emptyTrash);
    EXPECT_TRUE(desktop.performed.empty());
    EXPECT_EQ(
        dialogs.shown,
        (std::vector<Alert>{{"Empty the Trash?",
                             "This action is irreversible — files in the Trash will be permanently deleted.",
                             {"Empty", "Cancel"}}}));
    dialogs.press(0);
    EXPECT_EQ(desktop.performed, std::vector{QuickAction::emptyTrash});
    EXPECT_FALSE(dialogs.isOpen());
}

TEST_F(QuickActionsTest, LeaveTheTrashAloneOnCancel) {
    actions.trigger(QuickAction::emptyTrash);
    dialogs.press(1);
    EXPECT_TRUE(desktop.performed.empty());
}

TEST_F(QuickActionsTest, RunTheOthersAtOnce) {
    actions.trigger(QuickAction::sleepDisplay);
    EXPECT_EQ(desktop.performed, std::vector{QuickAction::sleepDisplay});
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(QuickActionsTest, ExplainAFailureAndOfferTheSettings) {
    desktop.failures.emplace(QuickAction::toggleDarkMode, "Not allowed.");
    actions.trigger(QuickAction::toggleDarkMode);
    EXPECT_EQ(dialogs.shown,
              (std::vector<Alert>{{"Action Failed", "Not allowed.", {"Open Settings", "Cancel"}}}));
    dialogs.press(0);
    EXPECT_EQ(desktop.settingsOpened, 1);
}

TEST_F(QuickActionsTest, OpenNothingWhenTheFailureIsDismissed) {
    desktop.failures.emplace(QuickAction::newFileManagerWindow, "No file manager.");
    actions.trigger(QuickAction::newFileManagerWindow);
    dialogs.press(1);
    EXPECT_EQ(desktop.settingsOpened, 0);
}

TEST_F(QuickActionsTest, OfferNoSettingsWhereTheSystemHasNone) {
    desktop.systemFamily = SystemFamily::other;
    localization.setLanguage(AppLanguage::cs);
    desktop.failures.emplace(QuickAction::emptyTrash, "nelze");
    actions.confirmEmptyTrash();
    dialogs.press(0);
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[1], (Alert{"Akce se nezdařila", "nelze", {"Zrušit"}}));
    dialogs.press(0);
    EXPECT_EQ(desktop.settingsOpened, 0);
}

TEST_F(QuickActionsTest, ExplainAScriptThatIsRefusedAlwaysInCzech) {
    ScriptOutcome refused;
    refused.compiled = false;
    for (const auto action :
         {QuickAction::emptyTrash, QuickAction::toggleDarkMode, QuickAction::newFileManagerWindow}) {
        desktop.failures.insert_or_assign(action, *scriptErrorText(refused));
        actions.trigger(action);
        if (action == QuickAction::emptyTrash) dialogs.press(0);
        EXPECT_EQ(dialogs.shown.back(),
                  (Alert{"Action Failed", "Neplatný AppleScript.", {"Open Settings", "Cancel"}}));
    }
}

TEST_F(QuickActionsTest, ExplainAFailureInTheLanguageOfTheMoment) {
    desktop.failures.emplace(QuickAction::toggleDarkMode, FailureText("nejde to", "no way"));
    actions.trigger(QuickAction::toggleDarkMode);
    localization.setLanguage(AppLanguage::cs);
    actions.trigger(QuickAction::toggleDarkMode);
    ASSERT_EQ(dialogs.shown.size(), 2U);
    EXPECT_EQ(dialogs.shown[0].informativeText, "no way");
    EXPECT_EQ(dialogs.shown[1].informativeText, "nejde to");
}

TEST_F(QuickActionsTest, StaySilentWhenARestartFails) {
    desktop.failures.emplace(QuickAction::restartFileManager, "no such process");
    desktop.failures.emplace(QuickAction::restartDock, "no such process");
    desktop.failures.emplace(QuickAction::sleepDisplay, "no such tool");
    actions.trigger(QuickAction::restartFileManager);
    actions.trigger(QuickAction::restartDock);
    actions.trigger(QuickAction::sleepDisplay);
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(QuickActionsTest, EndExactlyTheNamedProcessAndRefreshOnce) {
    actions.confirmKill({412, "Safari", 3.5, 1.0});
    EXPECT_EQ(dialogs.shown,
              (std::vector<Alert>{{"Quit this process?", "Safari (PID 412)", {"Quit", "Cancel"}}}));
    EXPECT_TRUE(processes.ended.empty());
    EXPECT_EQ(processes.held, std::vector<std::int32_t>{412}) << "held while the question is open";
    dialogs.press(0);
    EXPECT_EQ(processes.ended, std::vector<std::int32_t>{412});
    EXPECT_EQ(refreshes, 1);
}

TEST_F(QuickActionsTest, EndNothingOnCancel) {
    actions.confirmKill({412, "Safari", 3.5, 1.0});
    dialogs.press(1);
    EXPECT_TRUE(processes.ended.empty());
    EXPECT_EQ(refreshes, 0);
}

TEST_F(QuickActionsTest, RefreshEvenWhenTheProcessCouldNotBeEnded) {
    processes.answer = false;
    actions.confirmKill({1, "init", 0, 0});
    dialogs.press(0);
    EXPECT_EQ(refreshes, 1);
    EXPECT_EQ(dialogs.shown.size(), 1U);
}

} // namespace
} // namespace tarvo
