#include "ui/style/axis_text.h"

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

using namespace std::chrono;

const WallTime saturdayEvening = WallTime{sys_days{year{2026} / 11 / 21}} + hours{17};

seconds oneHourAhead(WallTime) {
    return hours{1};
}

std::string text(AxisLabel label, const QLocale& locale) {
    return axisText(label, saturdayEvening, oneHourAhead, locale).toStdString();
}

const QLocale czech(QLocale::Czech, QLocale::CzechRepublic);
const QLocale american(QLocale::English, QLocale::UnitedStates);
const QLocale german(QLocale::German, QLocale::Germany);
const QLocale swedish(QLocale::Swedish, QLocale::Sweden);

} // namespace

TEST(AxisText, WritesHoursAsTheLocaleDoes) {
    EXPECT_EQ(text(AxisLabel::hour, czech), "18");
    EXPECT_EQ(text(AxisLabel::hour, american), "6 PM");
}

TEST(AxisText, WritesNarrowWeekdays) {
    EXPECT_EQ(text(AxisLabel::narrowWeekday, american), "S");
    EXPECT_EQ(text(AxisLabel::narrowWeekday, czech), "S");
}

TEST(AxisText, WritesDayAndMonthInTheLocalesOrderWithoutTheYear) {
    EXPECT_EQ(text(AxisLabel::dayAndMonth, czech), "21.11.");
    EXPECT_EQ(text(AxisLabel::dayAndMonth, american), "11/21");
    EXPECT_EQ(text(AxisLabel::dayAndMonth, german), "21.11.");
    EXPECT_EQ(text(AxisLabel::dayAndMonth, swedish), "11-21");
}

TEST(AxisText, ShowsTheLocalDayAroundMidnight) {
    const auto lateEvening = WallTime{sys_days{year{2026} / 11 / 21}} + hours{23} + minutes{30};
    EXPECT_EQ(axisText(AxisLabel::dayAndMonth, lateEvening, oneHourAhead, german), "22.11.");
}

} // namespace tarvo::ui
