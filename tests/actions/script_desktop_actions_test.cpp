#include "actions/script_desktop_actions.h"

#include "support/manual_dispatcher.h"
#include "support/scripted_apple_scripts.h"
#include "support/scripted_child_processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class ScriptDesktopActionsTest : public testing::Test {
protected:
    /// What the action reported; the test fails when it did not do so exactly once.
    std::optional<FailureText> perform(QuickAction action) {
        int times = 0;
        std::optional<FailureText> reported;
        actions.perform(action, [&](std::optional<FailureText> failure) {
            ++times;
            reported = std::move(failure);
        });
        EXPECT_EQ(times, 1);
        return reported;
    }

    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    std::shared_ptr<ScriptedAppleScripts> scripts = std::make_shared<ScriptedAppleScripts>();
    std::shared_ptr<ScriptedChildProcesses> tools = std::make_shared<ScriptedChildProcesses>();
    std::vector<std::string> links;
    ScriptDesktopActions actions{scripts, tools, dispatcher,
                                 [this](const std::string& link) { links.push_back(link); }};
};

TEST_F(ScriptDesktopActionsTest, CanDoAllOfThem) {
    for (const auto action :
         {QuickAction::emptyTrash, QuickAction::restartFileManager, QuickAction::restartDock,
          QuickAction::sleepDisplay, QuickAction::toggleDarkMode, QuickAction::newFileManagerWindow})
        EXPECT_TRUE(actions.canDo(action));
    EXPECT_EQ(actions.family(), SystemFamily::macOS);
}

TEST_F(ScriptDesktopActionsTest, ThreeAreScripts) {
    perform(QuickAction::emptyTrash);
    perform(QuickAction::toggleDarkMode);
    perform(QuickAction::newFileManagerWindow);
    EXPECT_THAT(scripts->sources,
                ElementsAre("tell application \"Finder\" to empty trash",
                            "tell application \"System Events\" to tell appearance preferences to set dark "
                            "mode to not dark mode",
                            "tell application \"Finder\" to activate\n"
                            "tell application \"Finder\" to make new Finder window"));
    dispatcher.runAll();
    EXPECT_THAT(tools->runs, IsEmpty());
}

TEST_F(ScriptDesktopActionsTest, ThreeStartAToolThatNobodyWaitsFor) {
    EXPECT_EQ(perform(QuickAction::restartFileManager), std::nullopt);
    EXPECT_EQ(perform(QuickAction::restartDock), std::nullopt);
    EXPECT_EQ(perform(QuickAction::sleepDisplay), std::nullopt);
    EXPECT_THAT(tools->runs, IsEmpty()); // not on this thread
    dispatcher.runAll();
    EXPECT_THAT(tools->runs, ElementsAre(Pair("/usr/bin/killall", ElementsAre("Finder")),
                                         Pair("/usr/bin/killall", ElementsAre("Dock")),
                                         Pair("/usr/bin/pmset", ElementsAre("displaysleepnow"))));
    EXPECT_THAT(scripts->sources, IsEmpty());
}

TEST_F(ScriptDesktopActionsTest, AScriptThatWorkedReportsNothing) {
    EXPECT_EQ(perform(QuickAction::emptyTrash), std::nullopt);
}

TEST_F(ScriptDesktopActionsTest, AScriptsFailureIsReportedInTheSameWordsInBothLanguages) {
    scripts->outcome = {.compiled = true, .failed = true, .message = "Not allowed.", .errorDescription = ""};
    EXPECT_EQ(perform(QuickAction::newFileManagerWindow), FailureText("Not allowed."));
    scripts->outcome = {.compiled = false, .failed = false, .message = {}, .errorDescription = {}};
    EXPECT_EQ(perform(QuickAction::toggleDarkMode), FailureText("Neplatný AppleScript."));
}

TEST_F(ScriptDesktopActionsTest, OpenThePrivacyPageOfAutomation) {
    ASSERT_TRUE(actions.hasAutomationSettings());
    actions.openAutomationSettings();
    EXPECT_THAT(links,
                ElementsAre("x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"));
}

} // namespace
} // namespace tarvo
