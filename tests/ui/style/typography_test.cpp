#include "ui/style/typography.h"

#include <QFontDatabase>
#include <QFontInfo>

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(Typography, GivesRolesTheirSizes) {
    EXPECT_EQ(textSize(TextRole::axis), 8);
    EXPECT_EQ(textSize(TextRole::badge), 9.5);
    EXPECT_EQ(textSize(TextRole::ringValue), 13);
    EXPECT_EQ(textSize(TextRole::sectionTitle), 22);
    EXPECT_EQ(textSize(TextRole::heroValue), 40);
}

TEST(Typography, KeepsTheDesktopsFamily) {
    const QFont base = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    EXPECT_EQ(textFont(TextRole::rowLabel, base).family(), base.family());
}

TEST(Typography, MakesFontsAsManyPixelsHighAsTheRoleSays) {
    const QFont font = textFont(TextRole::heroValue, QFontDatabase::systemFont(QFontDatabase::GeneralFont));
    EXPECT_EQ(QFontInfo(font).pixelSize(), 40);
    EXPECT_EQ(font.weight(), QFont::Bold);
}

} // namespace tarvo::ui
