#include "sensors/sensor_decode.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace tarvo {
namespace {

CSMCReadResult reading(const char (&type)[5], std::initializer_list<unsigned char> bytes) {
    CSMCReadResult result{};
    std::copy_n(type, 5, result.dataType);
    std::copy(bytes.begin(), bytes.end(), std::begin(result.bytes));
    result.dataSize = static_cast<std::uint32_t>(bytes.size());
    result.success = 1;
    return result;
}

TEST(SensorDecode, AFloatIsInHostOrder) {
    auto result = reading("flt ", {});
    const auto raw = std::bit_cast<std::array<unsigned char, 4>>(61.25F);
    std::copy(raw.begin(), raw.end(), std::begin(result.bytes));
    EXPECT_EQ(decode(result), 61.25);
}

TEST(SensorDecode, SP78IsASignedFixedPointNumber) {
    EXPECT_EQ(decode(reading("sp78", {0x2D, 0x80})), 45.5);
    EXPECT_EQ(decode(reading("sp78", {0xFF, 0x80})), -0.5);
    EXPECT_EQ(decode(reading("sp78", {0x80, 0x00})), -128.0);
}

TEST(SensorDecode, FPE2CountsQuarters) {
    EXPECT_EQ(decode(reading("fpe2", {0x1C, 0x21})), 1800.25);
    EXPECT_EQ(decode(reading("fpe2", {0xFF, 0xFF})), 16383.75);
}

TEST(SensorDecode, IntegersAreBigEndianAndUnsigned) {
    EXPECT_EQ(decode(reading("ui8 ", {0xFF})), 255.0);
    EXPECT_EQ(decode(reading("ui16", {0x01, 0x02})), 258.0);
    EXPECT_EQ(decode(reading("ui32", {0x80, 0x00, 0x00, 0x01})), 2147483649.0);
}

TEST(SensorDecode, TheSizeIsNotConsulted) {
    auto result = reading("ui16", {0x01, 0x02});
    result.dataSize = 1;
    EXPECT_EQ(decode(result), 258.0);
}

class UndecodedType : public testing::TestWithParam<const char*> {};

TEST_P(UndecodedType, IsAbsent) {
    auto result = reading("ui8 ", {1, 2, 3, 4});
    std::fill(std::begin(result.dataType), std::end(result.dataType), '\0');
    std::copy_n(GetParam(), std::min<std::size_t>(std::char_traits<char>::length(GetParam()), 4),
                result.dataType);
    EXPECT_EQ(decode(result), std::nullopt);
}
INSTANTIATE_TEST_SUITE_P(SensorDecode, UndecodedType,
                         testing::Values("si16", "sp1e", "fp88", "flt", "ui8", "UI16", "ui64", "{pwm", ""));

TEST(SensorDecode, TheTypeAsTextKeepsItsBlanksAndStopsAtNul) {
    EXPECT_EQ(typeString(reading("flt ", {})), "flt ");
    EXPECT_EQ(typeString(reading("ui8\0", {})), "ui8");
    CSMCReadResult unterminated{};
    std::fill(std::begin(unterminated.dataType), std::end(unterminated.dataType), 'x');
    EXPECT_EQ(typeString(unterminated), "xxxxx");
}

} // namespace
} // namespace tarvo
