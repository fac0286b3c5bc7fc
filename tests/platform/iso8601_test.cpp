#include "platform/iso8601.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using namespace std::chrono_literals;
using std::chrono::seconds;
using testing::Eq;

constexpr WallTime moment{seconds{1'794'801'192}}; // 2026-11-16T03:53:12Z

TEST(ISO8601, WritesUTCWithWholeSecondsAndTheLetterZ) {
    EXPECT_EQ(formatISO8601(moment), "2026-11-16T03:53:12Z");
    EXPECT_EQ(formatISO8601(WallTime{}), "1970-01-01T00:00:00Z");
    EXPECT_EQ(formatISO8601(WallTime{seconds{951'782'399}}), "2000-02-28T23:59:59Z");
}

TEST(ISO8601, DropsTheSubSecondPartOnWriting) {
    EXPECT_EQ(formatISO8601(moment + 999'999'999ns), "2026-11-16T03:53:12Z");
    EXPECT_EQ(formatISO8601(WallTime{-1ns}), "1969-12-31T23:59:59Z");
}

TEST(ISO8601, ReadsWhatItWrites) {
    for (auto time = WallTime{seconds{-2'000'000'000}}; time < WallTime{seconds{4'000'000'000}};
         time += 9'999'991s) {
        EXPECT_THAT(parseISO8601(formatISO8601(time)), Eq(time)) << formatISO8601(time);
    }
}

TEST(ISO8601, ReadsANumericZone) {
    EXPECT_THAT(parseISO8601("2026-11-16T04:53:12+01:00"), Eq(moment));
    EXPECT_THAT(parseISO8601("2026-11-15T22:23:12-05:30"), Eq(moment));
}

TEST(ISO8601, ReadsTheLeapDayOfALeapYearOnly) {
    EXPECT_TRUE(parseISO8601("2024-02-29T00:00:00Z"));
    EXPECT_TRUE(parseISO8601("2000-02-29T00:00:00Z"));
    EXPECT_FALSE(parseISO8601("2026-02-29T00:00:00Z"));
    EXPECT_FALSE(parseISO8601("2100-02-29T00:00:00Z"));
}

TEST(ISO8601, RefusesWhatIsNotExactlyThatForm) {
    for (const auto* text : {"",
                             "2026",
                             "2026-11-16",
                             "2026-11-16T03:53:12",
                             "2026-11-16T03:53:12.5Z",
                             "2026-11-16T03:53:12,5Z",
                             "2026-11-16 03:53:12Z",
                             "2026-11-16t03:53:12z",
                             "2026-11-16T03:53:12Z ",
                             " 2026-11-16T03:53:12Z",
                             "2026-11-16T03:53Z",
                             "20261116T035312Z",
                             "2026-11-16T03:53:12+0100",
                             "2026-11-16T03:53:12+01",
                             "2026-11-16T03:53:12+01:00Z",
                             "2026-11-16T03:53:12ZZ",
                             "+026-11-16T03:53:12Z",
                             "2026-1a-16T03:53:12Z",
                             "2026-11-16T 3:53:12Z",
                             "-026-11-16T03:53:12Z",
                             "12026-11-16T03:53:12Z"}) {
        EXPECT_FALSE(parseISO8601(text)) << text;
    }
}

TEST(ISO8601, RefusesFieldsOutOfRange) {
    for (const auto* text :
         {"2026-00-16T03:53:12Z", "2026-13-16T03:53:12Z", "2026-11-00T03:53:12Z", "2026-11-31T03:53:12Z",
          "2026-11-16T24:00:00Z", "2026-11-16T03:60:12Z", "2026-11-16T03:53:60Z", "2026-11-16T03:53:12+24:00",
          "2026-11-16T03:53:12+01:60"}) {
        EXPECT_FALSE(parseISO8601(text)) << text;
    }
}

TEST(ISO8601, TakesMomentsBeyondTheClocksRangeAsItsEnds) {
    EXPECT_THAT(formatISO8601(parseISO8601("9999-12-31T23:59:59Z").value()), Eq("2262-04-11T23:47:16Z"));
    EXPECT_THAT(formatISO8601(parseISO8601("0001-01-01T00:00:00Z").value()), Eq("1677-09-21T00:12:44Z"));
}

} // namespace
} // namespace tarvo
