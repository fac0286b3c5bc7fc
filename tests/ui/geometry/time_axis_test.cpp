#include "ui/geometry/time_axis.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

using namespace std::chrono;

constexpr WallTime at(int yearNumber, unsigned monthNumber, unsigned dayNumber, int hour, int minute = 0) {
    return WallTime{sys_days{year{yearNumber} / month{monthNumber} / day{dayNumber}}} + hours{hour} +
           minutes{minute};
}

UTCOffset fixed(seconds offset) {
    return [offset](WallTime) { return offset; };
}

// One hour ahead of UTC, two from the last Sunday of March 2026 to the last of October.
seconds centralEurope(WallTime time) {
    return time >= at(2026, 3, 29, 1) && time < at(2026, 10, 25, 1) ? hours{2} : hours{1};
}

} // namespace

TEST(AxisMarks, StandEverySixHoursOfTheLocalClock) {
    const auto marks =
        axisMarks(sixHourScale, at(2026, 11, 20, 3, 30), at(2026, 11, 21, 3, 30), fixed(hours{1}));
    const std::vector<WallTime> expected{at(2026, 11, 20, 5), at(2026, 11, 20, 11), at(2026, 11, 20, 17),
                                         at(2026, 11, 20, 23)};
    EXPECT_EQ(marks, expected);
}

TEST(AxisMarks, IncludeBothEndsOfTheRange) {
    const auto marks = axisMarks(sixHourScale, at(2026, 1, 5, 0), at(2026, 1, 5, 12), fixed(hours{0}));
    const std::vector<WallTime> expected{at(2026, 1, 5, 0), at(2026, 1, 5, 6), at(2026, 1, 5, 12)};
    EXPECT_EQ(marks, expected);
}

TEST(AxisMarks, StandAtEachLocalMidnightOfAWeek) {
    const auto marks = axisMarks(dayScale, at(2026, 11, 14, 12), at(2026, 11, 21, 12), fixed(hours{-5}));
    ASSERT_EQ(marks.size(), 7U);
    EXPECT_EQ(marks.front(), at(2026, 11, 15, 5));
    EXPECT_EQ(marks.back(), at(2026, 11, 21, 5));
}

TEST(AxisMarks, StandEverySecondDayOfTwoWeeks) {
    const auto marks = axisMarks(twoDayScale, at(2026, 11, 7, 12), at(2026, 11, 21, 12), fixed(hours{0}));
    ASSERT_EQ(marks.size(), 7U);
    EXPECT_EQ(marks[1] - marks[0], hours{48});
}

TEST(AxisMarks, StayWhereTheyAreWhileTheRangeMovesOn) {
    const auto before = axisMarks(twoDayScale, at(2026, 11, 7, 12), at(2026, 11, 21, 12), fixed(hours{0}));
    const auto after = axisMarks(twoDayScale, at(2026, 11, 7, 13), at(2026, 11, 21, 13), fixed(hours{0}));
    EXPECT_EQ(before, after);
}

TEST(AxisMarks, StayAtMidnightWhenTheClocksChange) {
    const auto marks = axisMarks(dayScale, at(2026, 3, 27, 12), at(2026, 3, 31, 12), centralEurope);
    const std::vector<WallTime> expected{at(2026, 3, 27, 23), at(2026, 3, 28, 23), at(2026, 3, 29, 22),
                                         at(2026, 3, 30, 22)};
    EXPECT_EQ(marks, expected);
}

TEST(AxisMarks, StayOnTheirHoursWhenTheClocksGoBack) {
    const auto marks = axisMarks(sixHourScale, at(2026, 10, 24, 20), at(2026, 10, 25, 12), centralEurope);
    const std::vector<WallTime> expected{at(2026, 10, 24, 22), at(2026, 10, 25, 5), at(2026, 10, 25, 11)};
    EXPECT_EQ(marks, expected);
}

TEST(AxisMarks, MayBeNoneInAShortRange) {
    EXPECT_TRUE(axisMarks(sixHourScale, at(2026, 1, 5, 1), at(2026, 1, 5, 2), fixed(hours{0})).empty());
    EXPECT_TRUE(axisMarks(sixHourScale, at(2026, 1, 5, 2), at(2026, 1, 5, 1), fixed(hours{0})).empty());
}

TEST(AxisMarks, StayFewWhenAWrongClockLeftSamplesFarAway) {
    const auto marks = axisMarks(sixHourScale, at(1971, 1, 1, 0), at(2200, 1, 1, 0), fixed(hours{0}));
    EXPECT_LE(marks.size(), 65U);
    EXPECT_GE(marks.size(), 2U);
}

TEST(AxisMarks, AreFoundBeforeTheEpoch) {
    const auto marks = axisMarks(sixHourScale, at(1969, 12, 31, 1), at(1969, 12, 31, 13), fixed(hours{0}));
    const std::vector<WallTime> expected{at(1969, 12, 31, 6), at(1969, 12, 31, 12)};
    EXPECT_EQ(marks, expected);
}

TEST(PercentStep, IsCoarserInALowPlot) {
    EXPECT_EQ(percentStep(120), 25);
    EXPECT_EQ(percentStep(60), 50);
}

} // namespace tarvo::ui
