#include "platform/linux/parse_number.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace tarvo::linux_platform {

TEST(ParseNumber, TakesTheWholeTextOrNothing) {
    EXPECT_EQ(parseNumber<int>("-7"), -7);
    EXPECT_EQ(parseNumber<int>("7 "), std::nullopt);
    EXPECT_EQ(parseNumber<int>(" 7"), std::nullopt);
    EXPECT_EQ(parseNumber<int>("+7"), std::nullopt);
    EXPECT_EQ(parseNumber<int>(""), std::nullopt);
    EXPECT_EQ(parseNumber<int>("0x7"), std::nullopt);
}

TEST(ParseNumber, RejectsWhatDoesNotFit) {
    EXPECT_EQ(parseNumber<std::uint64_t>("18446744073709551615"), UINT64_MAX);
    EXPECT_EQ(parseNumber<std::uint64_t>("18446744073709551616"), std::nullopt);
    EXPECT_EQ(parseNumber<unsigned>("-1"), std::nullopt);
}

TEST(ParseNumber, ReadsFractionsWithAPointWhateverTheLocale) {
    EXPECT_EQ(parseNumber<double>("45.5"), 45.5);
    EXPECT_EQ(parseNumber<double>("45,5"), std::nullopt);
}

TEST(ParseNumber, ReadsHexadecimalWithAndWithoutItsMark) {
    EXPECT_EQ(parseHexadecimal<unsigned>("0x1003"), 0x1003U);
    EXPECT_EQ(parseHexadecimal<unsigned>("fF"), 255U);
    EXPECT_EQ(parseHexadecimal<unsigned>("0x"), std::nullopt);
    EXPECT_EQ(parseHexadecimal<unsigned>("-1"), std::nullopt);
    EXPECT_EQ(parseHexadecimal<int>("0x-1"), std::nullopt);
}

} // namespace tarvo::linux_platform
