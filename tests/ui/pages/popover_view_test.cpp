#include "ui/pages/popover_view.h"

#include "ui/pages/settings_page.h"
#include "ui/panel_fixture.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <QProxyStyle>

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// A desktop without animations, so that a page switch is over at once.
class StillStyle : public QProxyStyle {
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override {
        if (hint == SH_Widget_Animation_Duration) return 0;
        return QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

struct PopoverViewTest : ::testing::Test {
    PopoverViewTest() {
        parts.publish(laptopSnapshot());
        view.setStyle(&style);
        view.resize(view.sizeHint());
        view.show();
        QApplication::processEvents();
    }

    StillStyle style;
    PanelParts parts;
    PopoverView view{parts.context()};
};

} // namespace

TEST_F(PopoverViewTest, StartsWithTheStatsPage) {
    EXPECT_FALSE(view.showsSettings());
    EXPECT_TRUE(view.statsPage()->isVisible());
    EXPECT_EQ(view.settingsPage(), nullptr);
}

TEST_F(PopoverViewTest, TheGearOpensTheSettingsAndBackReturns) {
    buttonNamed(view, "Settings")->click();
    EXPECT_TRUE(view.showsSettings());
    EXPECT_TRUE(view.settingsPage()->isVisible());
    EXPECT_FALSE(view.statsPage()->isVisible());
    buttonNamed(*view.settingsPage(), "Back")->click();
    EXPECT_TRUE(view.statsPage()->isVisible());
    EXPECT_FALSE(view.settingsPage()->isVisible());
}

TEST_F(PopoverViewTest, AFlagTurnedOffOnTheSettingsPageRemovesItsCard) {
    EXPECT_THAT(shownTexts(*view.statsPage()), HasSubstr("Top Processes"));
    view.setShowSettings(true);
    buttonNamed(*view.settingsPage(), "Top Processes")->click();
    view.setShowSettings(false);
    EXPECT_THAT(shownTexts(*view.statsPage()), Not(HasSubstr("Top Processes")));
}

TEST_F(PopoverViewTest, TabGoesFromTheHeaderThroughTheCardsToTheFooter) {
    view.activateWindow();
    buttonNamed(view, "Settings")->setFocus();
    pressKey(*buttonNamed(view, "Settings"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), buttonNamed(view, "Live"));
    buttonNamed(view, "Quit")->setFocus();
    pressKey(*buttonNamed(view, "Quit"), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), buttonNamed(view, "Open Detail Window…"));
    pressKey(*QApplication::focusWidget(), Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), buttonNamed(view, "Quit"));
}

TEST_F(PopoverViewTest, TabStaysOnThePageThatIsShown) {
    view.setShowSettings(true);
    view.activateWindow();
    auto* back = buttonNamed(*view.settingsPage(), "Back");
    back->setFocus();
    pressKey(*back, Qt::Key_Backtab);
    EXPECT_TRUE(view.settingsPage()->isAncestorOf(QApplication::focusWidget()));
}

TEST_F(PopoverViewTest, BothPagesStandAtTheSamePlace) {
    view.setShowSettings(true);
    EXPECT_EQ(view.settingsPage()->geometry(), view.rect());
    view.resize(360, 500);
    EXPECT_EQ(view.settingsPage()->geometry(), view.rect());
}

TEST_F(PopoverViewTest, IsNotHigherThanItsContentAsksFor) {
    parts.showEverything(false);
    PopoverView small(parts.context());
    EXPECT_LE(small.sizeHint().height(), 220);
    EXPECT_LE(view.sizeHint().height(), 680);
}

} // namespace tarvo::ui
