#include "ui/cards/quick_actions_card.h"

#include "support/painted_widget.h"
#include "ui/actions_fixture.h"
#include "ui/controls/quick_action_button.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

struct QuickActionsCardTest : ::testing::Test {
    void open() {
        card = std::make_unique<QuickActionsCard>(parts.actions, parts.loc, nullptr);
        card->resize(336, card->sizeHint().height());
        card->show();
        ActionParts::settle();
    }
    std::string texts() const {
        ActionParts::settle();
        return shownTexts(*card);
    }
    QuickActionButton& tile(const std::string& name) {
        return dynamic_cast<QuickActionButton&>(*buttonNamed(*card, name));
    }

    ActionParts parts;
    std::unique_ptr<QuickActionsCard> card;
};

} // namespace

TEST_F(QuickActionsCardTest, HasItsCaptionAndTheTilesInTheirOrder) {
    open();
    EXPECT_EQ(texts(), "Quick Actions\nTrash\nFiles\nPanel\nDisplay\nDark Mode\nNew Window");
    EXPECT_EQ(tile("Trash").fields().icon, "trash.fill");
    EXPECT_EQ(tile("Trash").fields().color, colors::red);
    EXPECT_EQ(tile("Panel").fields().color, colors::indigo);
    EXPECT_EQ(tile("Display").fields().color, colors::purple);
    EXPECT_EQ(tile("Dark Mode").fields().icon, "circle.lefthalf.filled");
    EXPECT_EQ(tile("Dark Mode").fields().color, colors::gray);
    EXPECT_EQ(tile("New Window").fields().color, colors::teal);
}

TEST_F(QuickActionsCardTest, NamesFinderAndDockWhereTheyAre) {
    parts.desktop.systemFamily = SystemFamily::macOS;
    open();
    EXPECT_EQ(texts(), "Quick Actions\nTrash\nFinder\nDock\nDisplay\nDark Mode\nNew Window");
}

TEST_F(QuickActionsCardTest, FollowsTheLanguage) {
    open();
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(texts(), "Rychlé akce\nKoš\nSoubory\nPanel\nDisplej\nTmavý režim\nNové okno");
}

TEST_F(QuickActionsCardTest, LeavesOutWhatTheDesktopCannotDoAndPressesTheRightOnes) {
    parts.desktop.impossible = {QuickAction::restartFileManager, QuickAction::restartDock};
    open();
    EXPECT_EQ(texts(), "Quick Actions\nTrash\nDisplay\nDark Mode\nNew Window");
    tile("Display").click();
    tile("New Window").click();
    EXPECT_EQ(parts.desktop.performed,
              (std::vector{QuickAction::sleepDisplay, QuickAction::newFileManagerWindow}));
}

TEST_F(QuickActionsCardTest, LooksAgainWhatCanBeDoneWhenItAppears) {
    parts.desktop.impossible = {QuickAction::toggleDarkMode};
    open();
    EXPECT_FALSE(buttonNamed(*card, "Dark Mode"));
    card->hide();
    parts.desktop.impossible = {};
    card->show();
    ActionParts::settle();
    EXPECT_TRUE(buttonNamed(*card, "Dark Mode"));
}

TEST_F(QuickActionsCardTest, AsksBeforeTheTrashIsEmptied) {
    open();
    pressKey(tile("Trash"), Qt::Key_Return);
    EXPECT_TRUE(parts.desktop.performed.empty());
    ASSERT_TRUE(parts.dialogs.isOpen());
    parts.dialogs.press(1);
    EXPECT_TRUE(parts.desktop.performed.empty());
    pressKey(tile("Trash"), Qt::Key_Space);
    parts.dialogs.press(0);
    EXPECT_EQ(parts.desktop.performed, std::vector{QuickAction::emptyTrash});
}

TEST_F(QuickActionsCardTest, HasThreeColumnsOfOneWidth) {
    open();
    EXPECT_NEAR(tile("Trash").width(), tile("Dark Mode").width(), 1);
    EXPECT_NEAR(tile("Trash").width(), tile("Panel").width(), 1);
    EXPECT_EQ(tile("Trash").y(), tile("Panel").y());
    EXPECT_EQ(tile("Trash").x(), tile("Display").x());
    EXPECT_EQ(tile("Files").x() - tile("Trash").geometry().right() - 1, 8);
    EXPECT_EQ(tile("Display").y() - tile("Trash").geometry().bottom() - 1, 8);
}

TEST_F(QuickActionsCardTest, IsReachedByKeyboard) {
    open();
    for (const QAbstractButton* button : card->findChildren<QAbstractButton*>()) {
        EXPECT_TRUE(button->focusPolicy() & Qt::TabFocus);
        EXPECT_FALSE(button->accessibleName().isEmpty());
    }
}

} // namespace tarvo::ui
