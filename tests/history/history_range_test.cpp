#include "history/history_range.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarvo {
namespace {

using testing::Optional;

TEST(HistoryRange, IsDecodedFromItsRawValue) {
    EXPECT_THAT(historyRange(0), Optional(HistoryRange::live));
    EXPECT_THAT(historyRange(1), Optional(HistoryRange::day));
    EXPECT_THAT(historyRange(2), Optional(HistoryRange::week));
    EXPECT_THAT(historyRange(3), Optional(HistoryRange::twoWeeks));
}

TEST(HistoryRange, IsNoneForAnyOtherRawValue) {
    EXPECT_FALSE(historyRange(-1));
    EXPECT_FALSE(historyRange(4));
}

TEST(HistoryRange, AsksForMoreHoursTheFurtherItLooksBack) {
    EXPECT_EQ(overviewHours(HistoryRange::live), 1);
    EXPECT_EQ(overviewHours(HistoryRange::day), 24);
    EXPECT_EQ(overviewHours(HistoryRange::week), 168);
    EXPECT_EQ(overviewHours(HistoryRange::twoWeeks), 336);
}

TEST(HistoryRange, AsksForNothingStoredInThePopoversLiveRange) {
    EXPECT_EQ(popoverHours(HistoryRange::live), 0);
    EXPECT_EQ(popoverHours(HistoryRange::day), 24);
    EXPECT_EQ(popoverHours(HistoryRange::week), 168);
    EXPECT_EQ(popoverHours(HistoryRange::twoWeeks), 336);
}

} // namespace
} // namespace tarvo
