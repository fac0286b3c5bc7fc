#include "platform/local_time.h"

#include "support/time_zone.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

using std::chrono::seconds;

constexpr const char* centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";

TEST(LocalTime, CountsFromTheLocalZone) {
    const TimeZone zone(centralEurope);
    EXPECT_EQ(parseLocalTime("2025-01-15-120000", "yyyy-MM-dd-HHmmss"), WallTime(seconds(1736938800)));
    EXPECT_EQ(parseLocalTime("2025-07-15-120000", "yyyy-MM-dd-HHmmss"), WallTime(seconds(1752573600)));
}

TEST(LocalTime, FollowsTheZoneOfTheProcess) {
    const TimeZone zone("<+0545>-5:45");
    EXPECT_EQ(parseLocalTime("20250115-120000", "yyyyMMdd-HHmmss"), WallTime(seconds(1736921700)));
}

TEST(LocalTime, KnowsTheLastSecondBeforeTheEpoch) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(parseLocalTime("1969-12-31 23:59:59", "yyyy-MM-dd HH:mm:ss"), WallTime(seconds(-1)));
    EXPECT_EQ(parseLocalTime("1900-01-01 00:00:00", "yyyy-MM-dd HH:mm:ss"), WallTime(seconds(-2208988800)));
}

TEST(LocalTime, ClampsWhatTheProgramCannotHold) {
    const TimeZone zone("UTC0");
    const auto latest = std::chrono::floor<seconds>(WallTime::max());
    const auto earliest = std::chrono::ceil<seconds>(WallTime::min());
    EXPECT_EQ(parseLocalTime("7025-07-15", "yyyy-MM-dd"), latest);
    EXPECT_EQ(parseLocalTime("1066-10-14", "yyyy-MM-dd"), earliest);
    EXPECT_EQ(parseUniversalTime("7025-07-15", "yyyy-MM-dd"), latest);
    EXPECT_EQ(parseUniversalTime("1066-10-14", "yyyy-MM-dd"), earliest);
}

class NoLocalTime : public testing::TestWithParam<const char*> {};

TEST_P(NoLocalTime, IsAbsent) {
    const TimeZone zone("UTC0");
    EXPECT_EQ(parseLocalTime(GetParam(), "yyyy-MM-dd-HHmmss"), std::nullopt);
}
INSTANTIATE_TEST_SUITE_P(LocalTime, NoLocalTime,
                         testing::Values("", "2025-01-15", "2025-01-15-12000", "2025-01-15-1200000",
                                         "2025-01-15-120000.backup", "2025-13-15-120000", "2025-00-15-120000",
                                         "2025-02-29-120000", "2025-01-15-240000", "2025-01-15-126000",
                                         "2025-01-15-120060", "2025/01/15-120000", "2025-01-1a-120000",
                                         "2025-01- 5-120000", "-025-01-15-120000"));

} // namespace
} // namespace tarvo
