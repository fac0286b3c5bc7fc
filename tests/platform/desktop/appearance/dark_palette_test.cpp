#include "platform/desktop/appearance/dark_palette.h"

#include "platform/desktop/system_palette.h"
#include "support/contrast.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

class FollowColorScheme : public testing::Test {
protected:
    ~FollowColorScheme() override { QApplication::setPalette(QPalette()); }
};

TEST(DarkPalette, IsDarkAndReadsWell) {
    const QPalette dark = darkPalette();
    EXPECT_TRUE(isDark(dark));
    EXPECT_GE(contrast(dark.color(QPalette::WindowText), dark.color(QPalette::Window)), 7);
    EXPECT_GE(contrast(dark.color(QPalette::Text), dark.color(QPalette::Base)), 7);
    EXPECT_GE(contrast(dark.color(QPalette::ButtonText), dark.color(QPalette::Button)), 7);
    EXPECT_GE(contrast(dark.color(QPalette::ToolTipText), dark.color(QPalette::ToolTipBase)), 7);
    EXPECT_GE(contrast(dark.color(QPalette::HighlightedText), dark.color(QPalette::Highlight)), 4);
    EXPECT_GE(contrast(dark.color(QPalette::Link), dark.color(QPalette::Base)), 4.5);
}

TEST(DarkPalette, CarriesTheSystemColours) {
    const QPalette dark = darkPalette();
    for (const auto color : {SystemColor::label, SystemColor::secondaryLabel, SystemColor::red,
                             SystemColor::orange, SystemColor::green, SystemColor::blue, SystemColor::purple})
        EXPECT_GE(contrast(systemColor(color, dark), dark.color(QPalette::Window)), 4.5);
}

TEST_F(FollowColorScheme, DarkensALightToolkitAndBringsItsColoursBack) {
    const QColor own = QApplication::palette().color(QPalette::Window);
    ASSERT_FALSE(isDark(QApplication::palette()));
    followColorScheme(true);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), darkPalette().color(QPalette::Window));
    followColorScheme(true);
    EXPECT_TRUE(isDark(QApplication::palette()));
    followColorScheme(false);
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), own);
}

} // namespace
} // namespace tarvo::desktop
