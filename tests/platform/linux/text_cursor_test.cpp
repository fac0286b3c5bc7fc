#include "platform/linux/text_cursor.h"

#include <gtest/gtest.h>

namespace tarvo::linux_platform {

TEST(TextCursor, WalksFieldsAndLines) {
    TextCursor cursor("cpu0  12\tx\n  next");
    EXPECT_TRUE(cursor.skip("cpu"));
    EXPECT_FALSE(cursor.skip("cpu"));
    EXPECT_EQ(cursor.number(), 0U);
    EXPECT_EQ(cursor.number(), 12U);
    EXPECT_EQ(cursor.number(), std::nullopt);
    EXPECT_EQ(cursor.field(), "x");
    EXPECT_EQ(cursor.field(), "");
    cursor.nextLine();
    EXPECT_EQ(cursor.field(), "next");
    EXPECT_TRUE(cursor.atEnd());
    cursor.nextLine();
    EXPECT_TRUE(cursor.atEnd());
}

TEST(TextCursor, DoesNotTakeANumberFromTheNextLine) {
    TextCursor cursor("1 \n2");
    EXPECT_EQ(cursor.number(), 1U);
    EXPECT_EQ(cursor.number(), std::nullopt);
    EXPECT_FALSE(cursor.skipFields(1));
    cursor.nextLine();
    EXPECT_EQ(cursor.number(), 2U);
}

TEST(TextCursor, AcceptsNumbersUpToTheLargest) {
    EXPECT_EQ(TextCursor("18446744073709551615").number(), UINT64_MAX);
    EXPECT_EQ(TextCursor("18446744073709551616").number(), std::nullopt);
    EXPECT_EQ(TextCursor("99999999999999999999").number(), std::nullopt);
    EXPECT_EQ(TextCursor("00000000000000000000007").number(), 7U);
    EXPECT_EQ(TextCursor("-1").number(), std::nullopt);
    EXPECT_EQ(TextCursor("12kB").number(), std::nullopt);
    EXPECT_EQ(TextCursor("").number(), std::nullopt);
}

TEST(TextCursor, SkipsFieldsOfOneLine) {
    TextCursor cursor("a b c d\ne");
    EXPECT_TRUE(cursor.skipFields(3));
    EXPECT_EQ(cursor.field(), "d");
    EXPECT_FALSE(cursor.skipFields(1));
}

} // namespace tarvo::linux_platform
