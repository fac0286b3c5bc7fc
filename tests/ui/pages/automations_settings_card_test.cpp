#include "ui/pages/automations_settings_card.h"

#include "ui/actions_fixture.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <QMenu>

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;

using Names = std::vector<std::string>;

struct CustomAutomationsCardTest : ::testing::Test {
    void open() {
        card = std::make_unique<CustomAutomationsCard>(parts.context(), nullptr);
        card->resize(336, 260);
        card->show();
        ActionParts::settle();
    }
    void openWith(const Names& available, const Names& added = {}) {
        parts.automations->names = available;
        parts.settings.setCustomShortcuts(added);
        open();
        parts.dispatcher.runAll();
    }
    std::string texts() const {
        ActionParts::settle();
        return shownTexts(*card);
    }
    QMenu& menu() const { return *card->findChild<QMenu*>(); }
    Names menuLines() const {
        Names lines;
        for (const QAction* action : menu().actions())
            lines.push_back(action->text().toStdString());
        return lines;
    }
    QAction& line(int index) const { return *menu().actions().at(index); }

    ActionParts parts;
    std::unique_ptr<CustomAutomationsCard> card;
};

} // namespace

TEST_F(CustomAutomationsCardTest, SpeaksOfAutomationsAndTellsWhereTheyAre) {
    open();
    EXPECT_EQ(texts(),
              "CUSTOM AUTOMATIONS\nAdd your own programs, scripts and .desktop files as quick-action "
              "buttons. Keep them in the folder ~/automations.\nAdd Automation");
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(texts(), "VLASTNÍ AUTOMATIZACE\nPřidej vlastní programy, skripty a soubory .desktop jako "
                       "tlačítka rychlých akcí. Ulož je do složky ~/automations.\nPřidat automatizaci");
}

TEST_F(CustomAutomationsCardTest, SpeaksOfTheShortcutsAppOnAMac) {
    parts.automations->systemFamily = SystemFamily::macOS;
    AutomationsContext context = parts.context();
    context.place.clear();
    card = std::make_unique<CustomAutomationsCard>(context, nullptr);
    card->show();
    EXPECT_EQ(texts(), "CUSTOM AUTOMATIONS\nAdd your own automations from the Shortcuts app as quick-action "
                       "buttons.\nAdd Shortcut");
    EXPECT_EQ(menuLines(), Names{"You don't have any shortcuts yet"});
    parts.automations->names = {"a"};
    parts.settings.setCustomShortcuts({"a"});
    card->refreshAvailable();
    parts.dispatcher.runAll();
    ActionParts::settle();
    EXPECT_EQ(menuLines(), Names{"All your shortcuts are already added"});
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_THAT(texts(), HasSubstr("Přidej vlastní zkratky z appky Zkratky jako tlačítka rychlých akcí."));
    EXPECT_THAT(texts(), HasSubstr("Přidat zkratku"));
    EXPECT_EQ(menuLines(), Names{"Všechny zkratky jsou už přidané"});
    parts.automations->names = {};
    card->refreshAvailable();
    parts.dispatcher.runAll();
    EXPECT_EQ(menuLines(), Names{"V appce Zkratky nemáš zatím žádné zkratky"});
}

TEST_F(CustomAutomationsCardTest, OffersWhatIsNotYetAddedInThePlatformsOrder) {
    openWith({"c", "b", "a"}, {"b"});
    EXPECT_EQ(menuLines(), (Names{"c", "a"}));
    EXPECT_TRUE(line(0).isEnabled());
}

TEST_F(CustomAutomationsCardTest, ListsInTheBackgroundEachTimeItAppears) {
    parts.automations->names = {"a"};
    open();
    EXPECT_EQ(menuLines(), Names{"You don't have any automations yet"});
    EXPECT_FALSE(line(0).isEnabled());
    parts.dispatcher.runAll();
    EXPECT_EQ(menuLines(), Names{"a"});
    card->hide();
    parts.automations->names = {"a", "new"};
    card->show();
    parts.dispatcher.runAll();
    EXPECT_EQ(menuLines(), (Names{"a", "new"}));
}

TEST_F(CustomAutomationsCardTest, SaysWhenEverythingIsAdded) {
    openWith({"a"}, {"gone", "a"});
    EXPECT_EQ(menuLines(), Names{"All your automations are already added"});
    EXPECT_FALSE(line(0).isEnabled());
}

TEST_F(CustomAutomationsCardTest, AddsAtTheEndAndStoresTheWholeList) {
    openWith({"a", "b"}, {"z"});
    line(1).trigger();
    EXPECT_EQ(parts.settings.customShortcuts(), (Names{"z", "b"}));
    EXPECT_THAT(texts(), HasSubstr("Remove z"));
    EXPECT_THAT(texts(), HasSubstr("Remove b"));
    EXPECT_EQ(menuLines(), Names{"a"});
}

TEST_F(CustomAutomationsCardTest, RemovesEveryEntryOfExactlyThatName) {
    openWith({}, {"a", "b", "a", "A"});
    buttonNamed(*card, "Remove a")->click();
    EXPECT_EQ(parts.settings.customShortcuts(), (Names{"b", "A"}));
    EXPECT_THAT(texts(), HasSubstr("b\nRemove b\nA\nRemove A"));
    EXPECT_FALSE(buttonNamed(*card, "Remove a"));
}

TEST_F(CustomAutomationsCardTest, KeepsANameThatNoLongerExists) {
    openWith({"a"}, {"gone"});
    EXPECT_THAT(texts(), HasSubstr("gone\nRemove gone"));
    EXPECT_EQ(parts.settings.customShortcuts(), Names{"gone"});
}

TEST_F(CustomAutomationsCardTest, FollowsAListThatWasChangedElsewhere) {
    openWith({"a", "b"}, {"a"});
    parts.settings.setCustomShortcuts({"b"});
    EXPECT_THAT(texts(), HasSubstr("Remove b"));
    EXPECT_EQ(menuLines(), Names{"a"});
    line(0).trigger();
    EXPECT_EQ(parts.settings.customShortcuts(), (Names{"b", "a"}));
}

TEST_F(CustomAutomationsCardTest, ShowsOddNamesAsTheyAre) {
    const Names odd{"a & b", "tab\there", R"(say "hi" \now)", "-dash", " trailing "};
    openWith(odd);
    EXPECT_EQ(menuLines(), (Names{"a && b", "tab here", R"(say "hi" \now)", "-dash", " trailing "}));
    while (line(0).isEnabled()) {
        line(0).trigger();
        ActionParts::settle();
    }
    EXPECT_EQ(parts.settings.customShortcuts(), odd);
}

TEST_F(CustomAutomationsCardTest, ShortensALongNameOnlyToTheEye) {
    const std::string longName(200, 'x');
    openWith({longName});
    EXPECT_LT(menuLines().front().size(), longName.size());
    line(0).trigger();
    EXPECT_EQ(parts.settings.customShortcuts(), Names{longName});
}

TEST_F(CustomAutomationsCardTest, OpensItsMenuAtTheButtonFromTheKeyboard) {
    openWith({"a"});
    pressKey(*buttonNamed(*card, "Add Automation"), Qt::Key_Space);
    EXPECT_TRUE(menu().isVisible());
    pressKey(menu(), Qt::Key_Down);
    pressKey(menu(), Qt::Key_Return);
    EXPECT_EQ(parts.settings.customShortcuts(), Names{"a"});
    EXPECT_FALSE(menu().isVisible());
}

TEST_F(CustomAutomationsCardTest, KeepsTheKeyboardInTheListWhenARowGoes) {
    openWith({}, {"a", "b"});
    card->activateWindow();
    buttonNamed(*card, "Remove b")->setFocus();
    pressKey(*buttonNamed(*card, "Remove b"), Qt::Key_Return);
    ActionParts::settle();
    EXPECT_EQ(QApplication::focusWidget(), buttonNamed(*card, "Remove a"));
    pressKey(*buttonNamed(*card, "Remove a"), Qt::Key_Return);
    ActionParts::settle();
    EXPECT_EQ(QApplication::focusWidget(), buttonNamed(*card, "Add Automation"));
}

TEST_F(CustomAutomationsCardTest, ANameListThatComesLateIsDropped) {
    parts.automations->names = {"a"};
    open();
    card.reset();
    parts.dispatcher.runAll();
    EXPECT_TRUE(parts.dialogs.shown.empty());
}

} // namespace tarvo::ui
