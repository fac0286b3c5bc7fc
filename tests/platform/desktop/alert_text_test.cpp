#include "platform/desktop/alert_text.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace tarvo::desktop {
namespace {

TEST(AlertText, OfOrdinaryWordsIsLeftAsItIs) {
    const QString text = QStringLiteral("disk is full:  /home/jana (errno 28)\n");
    EXPECT_EQ(alertText(text), text);
    EXPECT_EQ(alertText(QString()), QString());
}

TEST(AlertText, MayBeBrokenWithinALongWord) {
    const QString text = alertText(QString(90, QLatin1Char('x')));
    EXPECT_EQ(text.count(QChar(0x200b)), 2);
    EXPECT_EQ(QString(text).remove(QChar(0x200b)), QString(90, QLatin1Char('x')));
}

TEST(AlertText, IsNeverBrokenWithinACharacter) {
    // 39 letters and then characters of two units each.
    QString word(39, QLatin1Char('x'));
    for (int count = 0; count < 30; ++count)
        word += QString::fromUtf8("😀");
    const QString text = alertText(word);
    EXPECT_GE(text.count(QChar(0x200b)), 1);
    EXPECT_TRUE(text.isValidUtf16());
    for (const QString& piece : text.split(QChar(0x200b)))
        EXPECT_TRUE(piece.isValidUtf16());
}

TEST(AlertText, EndsWithAnEllipsisWhereItWouldNotFitOnAScreen) {
    QString words;
    while (words.size() < 4000)
        words += QStringLiteral("word ");
    const QString text = alertText(words);
    EXPECT_EQ(text.size(), 1001);
    EXPECT_TRUE(text.endsWith(QChar(0x2026)));
    EXPECT_TRUE(words.startsWith(text.chopped(1)));
}

TEST(AlertText, IsNotCutWithinACharacter) {
    QString text(999, QLatin1Char(' '));
    for (int count = 0; count < 9; ++count)
        text += QString::fromUtf8("😀");
    EXPECT_TRUE(alertText(text).isValidUtf16());
    EXPECT_EQ(alertText(text).size(), 1000);
}

} // namespace
} // namespace tarvo::desktop
