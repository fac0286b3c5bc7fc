#include "actions/shortcuts_automations.h"

#include "support/scripted_apple_scripts.h"
#include "support/scripted_child_processes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

class ShortcutsAutomationsTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedChildProcesses> tools = std::make_shared<ScriptedChildProcesses>();
    std::shared_ptr<ScriptedAppleScripts> scripts = std::make_shared<ScriptedAppleScripts>();
    ShortcutsAutomations automations{tools, scripts};
};

TEST_F(ShortcutsAutomationsTest, AreListedByTheSystemsTool) {
    tools->outputs["/usr/bin/shortcuts"] = "Morning \n\nSay \"hi\"\n";
    EXPECT_THAT(automations.list(), ElementsAre("Morning ", "Say \"hi\""));
    EXPECT_THAT(tools->runs, ElementsAre(Pair("/usr/bin/shortcuts", ElementsAre("list"))));
}

TEST_F(ShortcutsAutomationsTest, AreNoneWhenTheToolCannotBeStartedOrWritesNoText) {
    EXPECT_THAT(automations.list(), IsEmpty());
    tools->outputs["/usr/bin/shortcuts"] = "Morning\xFF\n";
    EXPECT_THAT(automations.list(), IsEmpty());
}

TEST_F(ShortcutsAutomationsTest, AreRunByTheScriptingAgent) {
    EXPECT_TRUE(automations.run("Say \"hi\"").succeeded);
    EXPECT_THAT(scripts->sources,
                ElementsAre(R"(tell application "Shortcuts Events" to run shortcut "Say \"hi\"")"));
}

TEST_F(ShortcutsAutomationsTest, FailInTheErrorsOwnWords) {
    scripts->outcome = {.compiled = true, .failed = true, .message = "Not found.", .errorDescription = "{}"};
    const auto outcome = automations.run("Morning");
    EXPECT_FALSE(outcome.succeeded);
    EXPECT_EQ(outcome.message, FailureText("Not found."));
}

TEST_F(ShortcutsAutomationsTest, FailWithoutWordsWhenThereAreNone) {
    scripts->outcome = {.compiled = true, .failed = true, .message = {}, .errorDescription = "{code = 1}"};
    EXPECT_FALSE(automations.run("Morning").succeeded);
    EXPECT_EQ(automations.run("Morning").message, std::nullopt);
    scripts->outcome = {.compiled = false, .failed = false, .message = {}, .errorDescription = {}};
    EXPECT_FALSE(automations.run("Morning").succeeded);
    EXPECT_EQ(automations.run("Morning").message, std::nullopt);
}

} // namespace
} // namespace tarvo
