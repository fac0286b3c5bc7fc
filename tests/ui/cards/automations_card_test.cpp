#include "ui/cards/automations_card.h"

#include "ui/actions_fixture.h"
#include "ui/controls/quick_action_button.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using Names = std::vector<std::string>;

struct AutomationsCardTest : ::testing::Test {
    void open(const Names& names) {
        parts.settings.setCustomShortcuts(names);
        card = std::make_unique<AutomationsCard>(parts.context(), nullptr);
        card->resize(336, 180);
        card->show();
        ActionParts::settle();
    }
    std::string texts() const {
        ActionParts::settle();
        return shownTexts(*card);
    }

    ActionParts parts;
    std::unique_ptr<AutomationsCard> card;
};

} // namespace

TEST_F(AutomationsCardTest, HasATileForEachNameInTheStoredOrder) {
    open({"Zip", "Back up"});
    EXPECT_EQ(texts(), "Custom Automations\nZip\nBack up");
    const auto* tile = dynamic_cast<QuickActionButton*>(buttonNamed(*card, "Zip"));
    ASSERT_TRUE(tile);
    EXPECT_EQ(tile->fields().icon, "bolt.fill");
    EXPECT_EQ(tile->fields().color, colors::yellow);
}

TEST_F(AutomationsCardTest, FollowsTheLanguageButNeverTranslatesAName) {
    open({"Trash"});
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(texts(), "Vlastní automatizace\nTrash");
}

TEST_F(AutomationsCardTest, FollowsTheStoredNames) {
    open({"a", "b"});
    parts.settings.setCustomShortcuts({"b", "c", "d"});
    EXPECT_EQ(texts(), "Custom Automations\nb\nc\nd");
    buttonNamed(*card, "b")->click();
    parts.dispatcher.runAll();
    EXPECT_EQ(parts.automations->started(), Names{"b"});
}

TEST_F(AutomationsCardTest, RunsANameAsItIs) {
    const Names odd{R"(say "hi" \now)", "-dash", " trailing ", "a & b", std::string(200, 'x')};
    open(odd);
    for (const std::string& name : odd)
        buttonNamed(*card, name)->click();
    parts.dispatcher.runAll();
    EXPECT_EQ(parts.automations->started(), odd);
    EXPECT_TRUE(parts.dialogs.shown.empty());
}

TEST_F(AutomationsCardTest, NeverWaitsForARun) {
    open({"a"});
    buttonNamed(*card, "a")->click();
    buttonNamed(*card, "a")->click();
    EXPECT_TRUE(parts.automations->started().empty());
    parts.dispatcher.runAll();
    EXPECT_EQ(parts.automations->started().size(), 2U);
}

TEST_F(AutomationsCardTest, TellsAFailure) {
    open({"a"});
    parts.automations->outcome = {false, "a: not found"};
    buttonNamed(*card, "a")->click();
    parts.dispatcher.runAll();
    EXPECT_EQ(parts.dialogs.shown, (std::vector<Alert>{{"Action Failed", "a: not found", {}}}));
}

TEST_F(AutomationsCardTest, AFailureIsToldAfterTheCardHasGone) {
    open({"a"});
    parts.automations->outcome = {false, "late"};
    buttonNamed(*card, "a")->click();
    card.reset();
    parts.dispatcher.runAll();
    EXPECT_EQ(parts.dialogs.shown.size(), 1U);
}

TEST_F(AutomationsCardTest, IsNoWiderForALongName) {
    open({"a", "b", "c"});
    const int before = card->minimumSizeHint().width();
    parts.settings.setCustomShortcuts({std::string(200, 'x'), "b", "c"});
    ActionParts::settle();
    EXPECT_EQ(card->minimumSizeHint().width(), before);
}

} // namespace tarvo::ui
