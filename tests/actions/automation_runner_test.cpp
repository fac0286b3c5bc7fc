#include "actions/automation_runner.h"

#include "support/manual_dispatcher.h"
#include "support/memory_preference_store.h"
#include "support/scripted_automations.h"
#include "support/scripted_dialogs.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

using Names = std::vector<std::string>;

class AutomationRunnerTest : public testing::Test {
protected:
    MemoryPreferenceStore preferences;
    LocalizationManager localization{preferences, "en"};
    ManualClock clock;
    ManualDispatcher dispatcher{clock};
    ScriptedDialogs dialogs;
    std::shared_ptr<ScriptedAutomations> automations = std::make_shared<ScriptedAutomations>();
    AutomationRunner runner{automations, dispatcher, dialogs, localization};
};

TEST_F(AutomationRunnerTest, ListsInTheBackgroundAndHandsOverOnTheMainThread) {
    automations->names = {"b", "a"};
    std::vector<Names> listed;
    runner.list([&](Names names) { listed.push_back(std::move(names)); });
    EXPECT_TRUE(listed.empty());
    dispatcher.runBackground();
    EXPECT_TRUE(listed.empty());
    dispatcher.runMain();
    EXPECT_EQ(listed, std::vector<Names>{(Names{"b", "a"})});
}

TEST_F(AutomationRunnerTest, RunsInTheBackgroundAndKeepsSilentAboutSuccess) {
    runner.run("Tidy up");
    EXPECT_TRUE(automations->started().empty());
    dispatcher.runAll();
    EXPECT_EQ(automations->started(), Names{"Tidy up"});
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(AutomationRunnerTest, TellsAFailureInItsOwnWordsWithTheDefaultButtonOnly) {
    automations->outcome = {false, "disk is full"};
    runner.run("Tidy up");
    dispatcher.runBackground();
    EXPECT_TRUE(dialogs.shown.empty());
    dispatcher.runMain();
    EXPECT_EQ(dialogs.shown, (std::vector<Alert>{{"Action Failed", "disk is full", {}}}));
}

TEST_F(AutomationRunnerTest, TellsASilentFailureInTheLanguageOfTheMomentOfTelling) {
    automations->systemFamily = SystemFamily::other;
    AutomationRunner elsewhere(automations, dispatcher, dialogs, localization);
    automations->outcome = {false, std::nullopt};
    elsewhere.run("Tidy up");
    dispatcher.runBackground();
    localization.setLanguage(AppLanguage::cs);
    dispatcher.runMain();
    EXPECT_EQ(dialogs.shown,
              (std::vector<Alert>{{"Akce se nezdařila", "Automatizace skončila s chybou.", {}}}));
}

TEST_F(AutomationRunnerTest, RunsTheSameAgainWhileItsAlertIsOpen) {
    automations->outcome = {false, "no"};
    runner.run("a");
    dispatcher.runAll();
    runner.run("a");
    dispatcher.runAll();
    EXPECT_EQ(automations->started().size(), 2U);
    EXPECT_EQ(dialogs.shown.size(), 2U);
}

} // namespace
} // namespace tarvo
