#include "sensors/format_minutes.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(FormatMinutes, CountsMinutesBelowAnHour) {
    EXPECT_EQ(formatMinutes(0), "0 min");
    EXPECT_EQ(formatMinutes(45), "45 min");
    EXPECT_EQ(formatMinutes(59), "59 min");
}

TEST(FormatMinutes, ShowsHoursAndMinutesFromAnHourOn) {
    EXPECT_EQ(formatMinutes(60), "1:00");
    EXPECT_EQ(formatMinutes(135), "2:15");
    EXPECT_EQ(formatMinutes(6005), "100:05");
}

} // namespace
} // namespace tarvo
