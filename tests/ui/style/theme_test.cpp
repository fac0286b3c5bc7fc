#include "ui/style/theme.h"

#include "support/painted_widget.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

QPalette blackOnWhite() {
    QPalette palette(Qt::white);
    palette.setColor(QPalette::WindowText, Qt::black);
    return palette;
}

QPalette whiteOnBlack() {
    QPalette palette(Qt::black);
    palette.setColor(QPalette::WindowText, Qt::white);
    return palette;
}

const QPalette palettes[] = {lightPalette(), darkPalette(), blackOnWhite(), whiteOnBlack()};

} // namespace

TEST(Theme, TellsDarkFromLightByThePalette) {
    EXPECT_FALSE(Theme(lightPalette()).isDark());
    EXPECT_TRUE(Theme(darkPalette()).isDark());
}

TEST(Theme, TakesItsTextColourFromTheDesktop) {
    QPalette palette = lightPalette();
    palette.setColor(QPalette::WindowText, QColor(40, 20, 60));
    EXPECT_EQ(Theme(palette).color(colors::primary), QColor(40, 20, 60));
}

TEST(Theme, LiftsCardsOffTheWindow) {
    for (const QPalette& palette : {lightPalette(), darkPalette()}) {
        const Theme theme(palette);
        EXPECT_GT(theme.card().lightness(), theme.window().lightness());
    }
}

TEST(Theme, KeepsTextReadableOnCards) {
    for (const QPalette& palette : palettes) {
        const Theme theme(palette);
        EXPECT_GE(contrastRatio(theme.color(colors::primary), theme.card()), 7);
        EXPECT_GE(contrastRatio(theme.color(colors::secondary), theme.card()), 4.5);
    }
}

TEST(Theme, KeepsEveryNamedColourVisibleOnCards) {
    constexpr Color named[] = {colors::blue, colors::purple, colors::green,  colors::orange, colors::pink,
                               colors::red,  colors::teal,   colors::indigo, colors::gray};
    for (const QPalette& palette : palettes) {
        const Theme theme(palette);
        for (const Color color : named) {
            EXPECT_GE(contrastRatio(theme.color(color), theme.card()), 3.0) << static_cast<int>(color.name);
        }
        EXPECT_GE(contrastRatio(theme.color(colors::yellow), theme.card()), 2.2);
    }
}

TEST(Theme, KeepsWhiteReadableOnItsGroundsInLightAndDark) {
    constexpr Color ofLargeCards[] = {colors::blue, colors::indigo, colors::purple, colors::pink};
    for (const QPalette& palette : palettes) {
        const Theme theme(palette);
        for (const Color color : ofLargeCards) {
            const QColor ground = theme.ground(color);
            EXPECT_GE(contrastRatio(Qt::white, ground), 4.5) << static_cast<int>(color.name);
            EXPECT_EQ(ground, Theme(lightPalette()).ground(color));
        }
        EXPECT_GE(contrastRatio(Qt::white, theme.ground(colors::yellow)), 2.2);
        EXPECT_NEAR(theme.ground(colors::blue.withOpacity(0.5)).alphaF(), 0.5, 0.01);
        EXPECT_EQ(theme.ground(colors::primary), theme.color(colors::primary));
    }
}

TEST(Theme, AppliesOpacity) {
    const Theme theme(lightPalette());
    EXPECT_NEAR(theme.color(colors::primary.withOpacity(0.1)).alphaF(), 0.1, 0.01);
    EXPECT_EQ(theme.color(colors::clear).alpha(), 0);
}

TEST(ContrastRatio, RunsFromOneToTwentyOne) {
    EXPECT_NEAR(contrastRatio(Qt::white, Qt::black), 21, 0.01);
    EXPECT_NEAR(contrastRatio(Qt::red, Qt::red), 1, 0.01);
}

} // namespace tarvo::ui
