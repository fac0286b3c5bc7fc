#include "ui/geometry/column_reducer.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvo::ui {
namespace {

std::vector<DrawPoint> reduced(const std::vector<DrawPoint>& points, double columns) {
    ColumnReducer reducer(columns);
    for (const DrawPoint& point : points)
        reducer.add(point);
    return reducer.take();
}

} // namespace

TEST(ColumnReducer, KeepsALineThatIsSparseAlready) {
    const std::vector<DrawPoint> line{{0, 1}, {1, 5}, {2, 3}, {7, 2}};
    EXPECT_EQ(reduced(line, 8), line);
}

TEST(ColumnReducer, KeepsFirstLowestHighestAndLastOfAColumnInTheirOrder) {
    const std::vector<DrawPoint> line{{0, 5}, {0.2, 9}, {0.4, 6}, {0.5, 1}, {0.7, 4}, {0.9, 5}};
    const std::vector<DrawPoint> expected{{0, 5}, {0.2, 9}, {0.5, 1}, {0.9, 5}};
    EXPECT_EQ(reduced(line, 1), expected);
}

TEST(ColumnReducer, DoesNotRepeatAPointThatIsTwoOfTheFour) {
    const std::vector<DrawPoint> rising{{0, 9}, {0.3, 5}, {0.9, 1}};
    const std::vector<DrawPoint> expected{{0, 9}, {0.9, 1}};
    EXPECT_EQ(reduced(rising, 1), expected);
}

TEST(ColumnReducer, KeepsEverySinglePeakOfTwoWeeksOfMinutes) {
    constexpr int minutes = 20160;
    constexpr int columns = 300;
    for (const int peak : {0, 1, 777, 10080, minutes - 1}) {
        ColumnReducer reducer(columns * 4);
        for (int minute = 0; minute < minutes; ++minute) {
            const double x = static_cast<double>(minute) * columns / minutes;
            reducer.add({x, minute == peak ? 2.0 : 90.0});
        }
        const auto line = reducer.take();
        EXPECT_LE(line.size(), 4U * columns);
        EXPECT_EQ(std::count_if(line.begin(), line.end(), [](DrawPoint point) { return point.y == 2.0; }), 1);
    }
}

TEST(ColumnReducer, KeepsDipsToo) {
    std::vector<DrawPoint> line(100, DrawPoint{0, 10});
    for (std::size_t index = 0; index < line.size(); ++index)
        line[index].x = static_cast<double>(index) / 100;
    line[42].y = 99;
    const auto kept = reduced(line, 1);
    EXPECT_NE(std::find(kept.begin(), kept.end(), line[42]), kept.end());
}

TEST(ColumnReducer, IsEmptyAfterItsLineWasTaken) {
    ColumnReducer reducer(4);
    EXPECT_TRUE(reducer.take().empty());
    reducer.add({1, 1});
    EXPECT_EQ(reducer.take().size(), 1U);
    EXPECT_TRUE(reducer.take().empty());
}

} // namespace tarvo::ui
