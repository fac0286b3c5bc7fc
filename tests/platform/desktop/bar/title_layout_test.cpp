#include "platform/desktop/bar/title_layout.h"

#include "platform/desktop/bar/bar_item_geometry.h"

#include <QFontDatabase>
#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

const TextFont buttonFont{12, FontWeight::regular, true};

AttributedTitle plain(const std::string& text) {
    return {{{text, std::nullopt, std::nullopt}}, false, std::nullopt};
}

AttributedTitle stacked(const std::string& label, const std::string& value) {
    return {{{label + "\n", TextFont{8, FontWeight::medium, false}, SystemColor::secondaryLabel},
             {value, TextFont{10, FontWeight::semibold, true}, SystemColor::label}},
            true,
            9.0};
}

TEST(TitleLayout, APlainTitleIsOnePieceOnOneLine) {
    BarFonts fonts;
    const TitleLayout layout = layoutTitle(plain("CPU 23%"), buttonFont, fonts);
    ASSERT_EQ(layout.pieces.size(), 1U);
    EXPECT_EQ(layout.pieces[0].text, "CPU 23%");
    EXPECT_FALSE(layout.pieces[0].color.has_value());
    EXPECT_DOUBLE_EQ(layout.size.width(), fonts.font(buttonFont).width("CPU 23%"));
}

TEST(TitleLayout, AnEmptyTitleTakesNoRoom) {
    BarFonts fonts;
    const TitleLayout layout = layoutTitle({}, buttonFont, fonts);
    EXPECT_TRUE(layout.pieces.empty());
    EXPECT_DOUBLE_EQ(layout.size.width(), 0);
}

TEST(TitleLayout, TwoLinesOfNinePixelsFitTheBar) {
    BarFonts fonts;
    const TitleLayout layout = layoutTitle(stacked("PAMĚŤ", "48%"), buttonFont, fonts);
    ASSERT_EQ(layout.pieces.size(), 2U);
    EXPECT_DOUBLE_EQ(layout.size.height(), 18);
    EXPECT_LT(layout.size.height(), barHeight);
    EXPECT_GE(layout.pieces[1].origin.y() - layout.pieces[0].origin.y(), 8);
}

TEST(TitleLayout, TheNarrowerLineOfACentredTitleStandsInTheMiddle) {
    BarFonts fonts;
    const TitleLayout layout = layoutTitle(stacked("TEPLOTA", "9%"), buttonFont, fonts);
    const TitlePiece& label = layout.pieces[0];
    const TitlePiece& value = layout.pieces[1];
    EXPECT_DOUBLE_EQ(label.origin.x(), 0);
    EXPECT_NEAR(value.origin.x() + value.width / 2, layout.size.width() / 2, 0.01);
}

TEST(TitleLayout, RunsOfOneLineFollowEachOther) {
    BarFonts fonts;
    const AttributedTitle title{
        {{"A", std::nullopt, std::nullopt}, {"B", std::nullopt, SystemColor::red}}, false, std::nullopt};
    const TitleLayout layout = layoutTitle(title, buttonFont, fonts);
    ASSERT_EQ(layout.pieces.size(), 2U);
    EXPECT_DOUBLE_EQ(layout.pieces[1].origin.x(), layout.pieces[0].width);
    EXPECT_EQ(layout.pieces[1].color, SystemColor::red);
}

TEST(TitleLayout, ACharacterThatNoFontHasIsASymbol) {
    BarFonts fonts;
    if (fonts.font(buttonFont).canShow(0x1F50B)) GTEST_SKIP() << "a font of this system shows the battery";
    const TitleLayout layout = layoutTitle(plain("RAM 48% · 🔋85%"), buttonFont, fonts);
    ASSERT_EQ(layout.pieces.size(), 3U);
    EXPECT_EQ(layout.pieces[0].text, "RAM 48% · ");
    EXPECT_EQ(layout.pieces[1].symbol, "battery.100percent");
    EXPECT_EQ(layout.pieces[2].text, "85%");
    EXPECT_GT(layout.pieces[2].origin.x(), layout.pieces[1].origin.x() + 8);
}

TEST(RoomForNumbers, KeepsTwoDigitsForAPercentageAndThreeForARate) {
    EXPECT_EQ(withRoomForNumbers("CPU 3% · RAM 48%"), "CPU 00% · RAM 48%");
    EXPECT_EQ(withRoomForNumbers("100%"), "100%");
    EXPECT_EQ(withRoomForNumbers("↓1.5 KB/s"), "↓000.0 MB/s");
    EXPECT_EQ(withRoomForNumbers("0.0 B/s"), "000.0 MB/s");
    EXPECT_EQ(withRoomForNumbers("Disk 412GB"), "Disk 412GB");
    EXPECT_EQ(withRoomForNumbers("…"), "…");
}

class ReservedWidthTest : public testing::Test {
protected:
    double fit(const std::string& text) {
        const AttributedTitle title = plain(text);
        return reserved.fit(title, layoutTitle(title, buttonFont, fonts), buttonFont, fonts);
    }
    BarFonts fonts;
    ReservedWidth reserved;
};

TEST_F(ReservedWidthTest, StaysTheSameBetweenOneAndTwoDigits) {
    EXPECT_DOUBLE_EQ(fit("CPU 9%"), fit("CPU 10%"));
    EXPECT_DOUBLE_EQ(fit("CPU 99%"), fit("CPU 1%"));
}

TEST_F(ReservedWidthTest, GrowsWithTheTitleAndDoesNotShrinkBehindIt) {
    const double two = fit("CPU 23%");
    const double three = fit("CPU 100%");
    EXPECT_GT(three, two);
    EXPECT_DOUBLE_EQ(fit("CPU 23%"), three);
}

TEST_F(ReservedWidthTest, StartsAnewWhenAPartOfTheTitleGoes) {
    const double both = fit("CPU 100% · RAM 100%");
    EXPECT_LT(fit("CPU 23%"), both / 2);
}

TEST_F(ReservedWidthTest, IsTheSameForEveryRateUpToThreeDigits) {
    EXPECT_DOUBLE_EQ(fit("0.0 B/s"), fit("999.9 KB/s"));
}

/// A family whose digits differ in width, where the system has one.
std::optional<QFont> fontWithUnevenDigits() {
    for (const QString& family : QFontDatabase::families()) {
        if (QFontDatabase::isPrivateFamily(family)) continue;
        QFont font(family);
        font.setPixelSize(12);
        const QFontMetricsF metrics(font);
        if (metrics.horizontalAdvance('1') < metrics.horizontalAdvance('0') - 0.5) return font;
    }
    return std::nullopt;
}

TEST(BarFont, GivesEveryDigitTheSameWidth) {
    const auto uneven = fontWithUnevenDigits();
    if (!uneven) GTEST_SKIP() << "needs a font with uneven digits, as fonts-cantarell has";
    const BarFont font(*uneven, true);
    EXPECT_DOUBLE_EQ(font.width("11%"), font.width("00%"));
    const BarFont proportional(*uneven, false);
    EXPECT_LT(proportional.width("11%"), proportional.width("00%"));
}

TEST(BarFont, DrawsUpwardsFromTheBaseLine) {
    BarFonts fonts;
    QImage image(40, 40, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    fonts.font(buttonFont).draw(painter, {5, 20}, "88");
    painter.end();
    const auto inked = [&](int from, int to) {
        for (int y = from; y < to; ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 0) return true;
            }
        }
        return false;
    };
    EXPECT_TRUE(inked(8, 20));
    EXPECT_FALSE(inked(22, 40));
}

} // namespace
} // namespace tarvo::desktop
