#include "ui/tables/column_widths.h"

#include <gmock/gmock.h>

#include <numeric>

namespace tarvo::ui {
namespace {

using ::testing::ElementsAre;

int sum(const std::vector<int>& widths) {
    return std::accumulate(widths.begin(), widths.end(), 0);
}

} // namespace

TEST(ColumnWidths, GiveWhatIsLeftOverToTheStretchingColumnsInEqualParts) {
    const std::vector<ColumnNeed> needs{{100, 50, true}, {60, 40, false}, {100, 50, true}};
    EXPECT_THAT(fittedColumns(needs, 361), ElementsAre(150, 60, 151));
}

TEST(ColumnWidths, TakeWhatIsMissingFromTheStretchingColumnsFirst) {
    const std::vector<ColumnNeed> needs{{300, 100, true}, {60, 40, false}, {200, 100, true}};
    const auto widths = fittedColumns(needs, 400);
    EXPECT_EQ(sum(widths), 400);
    EXPECT_EQ(widths[1], 60);
    EXPECT_GT(widths[0], widths[2]);
}

TEST(ColumnWidths, AreNeverBelowTheLeast) {
    const std::vector<ColumnNeed> needs{{300, 100, true}, {60, 40, false}, {200, 100, true}};
    EXPECT_THAT(fittedColumns(needs, 230), ElementsAre(100, 40, 100));
    EXPECT_THAT(fittedColumns(needs, 0), ElementsAre(100, 40, 100));
}

TEST(ColumnWidths, OfNoColumnsAreNone) {
    EXPECT_TRUE(fittedColumns({}, 100).empty());
}

TEST(ColumnWidths, LeaveRoomFreeWhereNothingStretches) {
    const std::vector<ColumnNeed> needs{{50, 20, false}};
    EXPECT_THAT(fittedColumns(needs, 100), ElementsAre(50));
}

} // namespace tarvo::ui
