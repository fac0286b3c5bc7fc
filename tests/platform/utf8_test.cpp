#include "platform/utf8.h"

#include <gtest/gtest.h>

namespace tarvo {

TEST(UTF8, AcceptsEveryWellFormedLength) {
    EXPECT_TRUE(isUTF8(""));
    EXPECT_TRUE(isUTF8("plain"));
    EXPECT_TRUE(isUTF8("P\xC5\x99\xC3\xADli\xC5\xA1"));
    EXPECT_TRUE(isUTF8("\xE2\x82\xAC \xF0\x9F\x98\x80 \xF4\x8F\xBF\xBF"));
}

TEST(UTF8, RejectsMalformedBytes) {
    EXPECT_FALSE(isUTF8("\xFF"));
    EXPECT_FALSE(isUTF8("\x80"));
    EXPECT_FALSE(isUTF8("\xC0\x80"));         // overlong
    EXPECT_FALSE(isUTF8("\xE0\x80\x80"));     // overlong
    EXPECT_FALSE(isUTF8("\xED\xA0\x80"));     // surrogate
    EXPECT_FALSE(isUTF8("\xF4\x90\x80\x80")); // above the last code point
    EXPECT_FALSE(isUTF8("\xE2\x82"));         // cut
    EXPECT_FALSE(isUTF8("\xE2\x28\xA1"));
}

TEST(UTF8, TrimsWhiteSpaceOfAnyKindFromBothEnds) {
    EXPECT_EQ(trimmedWhiteSpace(" \t\r\n1.2.3.4\n"), "1.2.3.4");
    EXPECT_EQ(trimmedWhiteSpace("\xC2\xA0 a b \xE3\x80\x80\xE2\x80\xA8"), "a b");
    EXPECT_EQ(trimmedWhiteSpace("\xC2\x85"), "");
    EXPECT_EQ(trimmedWhiteSpace(" \n "), "");
    EXPECT_EQ(trimmedWhiteSpace(""), "");
    EXPECT_EQ(trimmedWhiteSpace("\xC5\x99"), "\xC5\x99");
}

TEST(UTF8, ALineToPrintHoldsNoControlCharacters) {
    EXPECT_EQ(printableLine("a\nb\tc\x7F"), "a?b?c?");
    EXPECT_EQ(printableLine("\xC5\x99\xC5\xE2\x80\x94\xE2\x80"), "\xC5\x99?\xE2\x80\x94??");
    EXPECT_EQ(printableLine(std::string_view("a\0b", 3)), "a?b");
    EXPECT_EQ(printableLine(""), "");
}

} // namespace tarvo
