#include "ui/style/text_lines.h"

#include <QFontMetricsF>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

double widthOf(const char* text) {
    return QFontMetricsF(QFont()).horizontalAdvance(QString::fromUtf8(text)) + 1;
}

} // namespace

TEST(TextLines, OfAShortTextAreOne) {
    EXPECT_EQ(textLines(QStringLiteral("Tidy up"), QFont(), widthOf("Tidy up"), 2), QStringList{"Tidy up"});
    EXPECT_EQ(textLines(QString(), QFont(), 100, 2), QStringList{});
}

TEST(TextLines, AreBrokenBetweenWords) {
    const QString text = QStringLiteral("Back up the photos");
    EXPECT_EQ(textLines(text, QFont(), widthOf("Back up the"), 2), (QStringList{"Back up the", "photos"}));
}

TEST(TextLines, EndWithAnEllipsisWhereTheRestDoesNotFit) {
    const QStringList lines = textLines(QStringLiteral("Back up the photos to the other house"), QFont(),
                                        widthOf("Back up the"), 2);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_TRUE(lines[1].startsWith(QStringLiteral("photos")));
    EXPECT_TRUE(lines[1].endsWith(QChar(0x2026)));
    EXPECT_LE(QFontMetricsF(QFont()).horizontalAdvance(lines[1]), widthOf("Back up the"));
}

TEST(TextLines, BreakAWordThatIsLongerThanALine) {
    const QStringList lines = textLines(QString(60, QLatin1Char('x')), QFont(), widthOf("xxxxxxxxxx"), 2);
    ASSERT_EQ(lines.size(), 2);
    EXPECT_FALSE(lines[0].isEmpty());
    EXPECT_TRUE(lines[1].endsWith(QChar(0x2026)));
}

} // namespace tarvo::ui
