#include "platform/utf8.h"

#include <gtest/gtest.h>

#include <string_view>

namespace tarvo {
namespace {

using namespace std::string_view_literals;

TEST(UTF8, AcceptsTextOfEveryLength) {
    EXPECT_TRUE(isValidUTF8(""));
    EXPECT_TRUE(isValidUTF8("plain\0text"sv));
    EXPECT_TRUE(isValidUTF8("Výkonná jádra"));
    EXPECT_TRUE(isValidUTF8("\u20AC \uFFFD \U0001F50B"));
    EXPECT_TRUE(isValidUTF8("\xF4\x8F\xBF\xBF"));
    EXPECT_TRUE(isValidUTF8("\xED\x9F\xBF"));
}

class InvalidUTF8 : public testing::TestWithParam<std::string_view> {};

TEST_P(InvalidUTF8, IsRefused) {
    EXPECT_FALSE(isValidUTF8(GetParam()));
}
INSTANTIATE_TEST_SUITE_P(UTF8, InvalidUTF8,
                         testing::Values("\x80"sv, "\xC3"sv, "\xC3("sv, "\xC0\x80"sv, "\xC1\xBF"sv,
                                         "\xE0\x80\x80"sv, "\xE2\x82"sv, "\xED\xA0\x80"sv,
                                         "\xF0\x80\x80\x80"sv, "\xF0\x9F\x94"sv, "\xF4\x90\x80\x80"sv,
                                         "\xF5\x80\x80\x80"sv, "\xFF"sv, "ok\xC3"sv));

} // namespace
} // namespace tarvo
