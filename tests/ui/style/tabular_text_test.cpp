#include "ui/style/tabular_text.h"

#include <QFontDatabase>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

TabularText systemText() {
    return TabularText(QFontDatabase::systemFont(QFontDatabase::GeneralFont));
}

} // namespace

TEST(TabularText, GivesEveryNumberOfEqualLengthTheSameWidth) {
    const TabularText text = systemText();
    EXPECT_NEAR(text.width("111.1%"), text.width("888.8%"), 0.01);
    EXPECT_NEAR(text.width("1 GB 7"), text.width("0 GB 4"), 0.01);
}

TEST(TabularText, DoesSoInAFontWhoseDigitsDiffer) {
    QFont font(QStringLiteral("URW Bookman"));
    font.setItalic(true);
    const TabularText text(font);
    EXPECT_NEAR(text.width("111"), text.width("888"), 0.01);
}

TEST(TabularText, ShortensOnlyWhatDoesNotFit) {
    const TabularText text = systemText();
    EXPECT_EQ(text.elided("short", 500), "short");
    const QString shortened = text.elided(QString(200, QLatin1Char('x')), 80);
    EXPECT_TRUE(shortened.endsWith(QChar(0x2026)));
    EXPECT_LE(text.width(shortened), 80);
}

TEST(TabularText, ShortensNumbersToTheRoomTheyTake) {
    const TabularText text = systemText();
    EXPECT_LE(text.width(text.elided(QString(60, QLatin1Char('1')), 50)), 50);
}

TEST(TabularText, BearsNoRoomAtAll) {
    EXPECT_LE(systemText().elided("word", 0).size(), 1);
}

} // namespace tarvo::ui
