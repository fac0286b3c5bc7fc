#include "platform/linux/text_cursor.h"

#include <gtest/gtest.h>

#include <random>
#include <string>

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

TEST(TextCursor, SkipsLongLinesAsItWalksThem) {
    std::mt19937 random(5);
    for (int round = 0; round < 50'000; ++round) {
        std::string text(random() % 60, ' ');
        for (auto& character : text) {
            const auto choice = random() % 40;
            if (choice > 1) character = choice % 2 == 0 ? ' ' : 'x';
            if (choice == 3) character = '\xC3';
            if (choice == 5) character = '\x7F';
            if (choice == 1) character = random() % 2 == 0 ? '\n' : '\t';
        }
        const int count = static_cast<int>(random() % 8);
        TextCursor quick(text);
        TextCursor slow(text);
        int walked = 0;
        while (walked < count && !slow.field().empty())
            ++walked;
        ASSERT_EQ(quick.skipFields(count), walked == count) << text << '|' << count;
        if (walked < count) continue;
        ASSERT_EQ(quick.rest(), slow.rest()) << text << '|' << count;
    }
}

} // namespace tarvo::linux_platform
