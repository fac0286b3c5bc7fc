#include "platform/parse_double.h"

#include <gtest/gtest.h>

#include <string>

namespace tarvo {
namespace {

class ParseDouble : public testing::TestWithParam<std::optional<double> (*)(std::string_view)> {};

TEST_P(ParseDouble, ReadsTheWholeTextAsADecimalNumber) {
    const auto parse = GetParam();
    EXPECT_EQ(parse("0"), 0);
    EXPECT_EQ(parse("45.6"), 45.6);
    EXPECT_EQ(parse("-1.0"), -1);
    EXPECT_EQ(parse("0.1"), 0.1);
    EXPECT_EQ(parse("1e3"), 1000);
    EXPECT_EQ(parse("123456789.987654321"), 123456789.987654321);
}

TEST_P(ParseDouble, TakesNothingElse) {
    const auto parse = GetParam();
    for (const std::string text : {"", " ", "45,6", "4 5", "45.6 ", " 45.6", "+1", "-", ".", "1e", "0x10",
                                   "inf", "nan", "1.2.3", "1-2", "9e999", "\xC5\x99"})
        EXPECT_EQ(parse(text), std::nullopt) << '"' << text << '"';
}

INSTANTIATE_TEST_SUITE_P(BothMeans, ParseDouble, testing::Values(&parseDouble, &parseDoubleByStream));

} // namespace
} // namespace tarvo
