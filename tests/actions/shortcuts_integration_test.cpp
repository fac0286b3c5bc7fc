#include "actions/shortcuts_integration.h"

#include "support/scripted_automations.h"

#include <gtest/gtest.h>

#include <memory>
#include <thread>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using Names = std::vector<std::string>;

class ShortcutsIntegrationTest : public testing::Test {
protected:
    std::shared_ptr<ScriptedAutomations> automations = std::make_shared<ScriptedAutomations>();
    ShortcutsIntegration shortcuts{automations};
};

TEST(ShortcutNames, AreOneALineWithoutEmptyOnes) {
    EXPECT_EQ(parseShortcutNames("One\n\nTwo words\n"), (Names{"One", "Two words"}));
    EXPECT_EQ(parseShortcutNames("no line feed"), Names{"no line feed"});
    EXPECT_EQ(parseShortcutNames(""), Names{});
}

TEST(ShortcutNames, KeepTheirBlanksAndCarriageReturns) {
    EXPECT_EQ(parseShortcutNames(" lead\ntrail \ndos\r\n"), (Names{" lead", "trail ", "dos\r"}));
}

TEST(ShortcutNames, AreNoneWhenTheTextIsNotUTF8) {
    EXPECT_EQ(parseShortcutNames("One\n\xff\n"), Names{});
}

TEST_F(ShortcutsIntegrationTest, ListsWhatThePlatformReports) {
    automations->names = {"a", "b"};
    EXPECT_EQ(shortcuts.listShortcuts(), (Names{"a", "b"}));
}

TEST_F(ShortcutsIntegrationTest, SuccessIsSilent) {
    EXPECT_FALSE(shortcuts.run("a", 20s, AppLanguage::en));
}

TEST_F(ShortcutsIntegrationTest, AFailureIsToldInItsOwnWords) {
    automations->outcome = {false, "No such shortcut."};
    EXPECT_EQ(shortcuts.run("a", 20s, AppLanguage::cs), "No such shortcut.");
}

TEST_F(ShortcutsIntegrationTest, ASilentFailureGetsTheGenericText) {
    automations->outcome = {false, std::nullopt};
    EXPECT_EQ(shortcuts.run("a", 20s, AppLanguage::en), "The shortcut finished with an error.");
    EXPECT_EQ(shortcuts.run("a", 20s, AppLanguage::cs), "Zkratka skončila s chybou.");
    automations->systemFamily = SystemFamily::other;
    EXPECT_EQ(shortcuts.run("a", 20s, AppLanguage::en), "The automation finished with an error.");
}

TEST_F(ShortcutsIntegrationTest, ARunThatNeverEndsIsReportedAndASecondOneStartsBesideIt) {
    EXPECT_EQ(shortcuts.run("hang", 10ms, AppLanguage::en),
              "The shortcut didn't respond in time — it may be waiting on a permission prompt the app can't "
              "show. Try "
              "running it manually in the Shortcuts app first.");
    EXPECT_EQ(shortcuts.run("hang", 10ms, AppLanguage::cs),
              "Zkratka neodpověděla včas — možná čeká na potvrzení oprávnění, které appka nemůže zobrazit. "
              "Zkus ji nejdřív "
              "ručně spustit přímo v appce Zkratky.");
    automations->systemFamily = SystemFamily::other;
    EXPECT_EQ(shortcuts.run("hang", 10ms, AppLanguage::en),
              "The automation didn't finish in time. It keeps running; try running it manually in a terminal "
              "first.");
    EXPECT_EQ(shortcuts.run("hang", 10ms, AppLanguage::cs),
              "Automatizace neskončila včas. Běží dál; zkus ji nejdřív ručně spustit v terminálu.");
    // Each has a thread of its own, which the system may start late.
    while (automations->started().size() < 4)
        std::this_thread::yield();
    automations->releaseHanging();
}

TEST_F(ShortcutsIntegrationTest, PassesANameOnAsItIs) {
    for (const char* name : {R"(say "hi" \now)", "-dash", " trailing ", "\ttab"}) {
        EXPECT_FALSE(shortcuts.run(name, 20s, AppLanguage::en));
        EXPECT_EQ(automations->started().back(), name);
    }
}

TEST_F(ShortcutsIntegrationTest, TheLimitIsTwentySeconds) {
    EXPECT_EQ(ShortcutsIntegration::runTimeout, 20s);
}

} // namespace
} // namespace tarvo
