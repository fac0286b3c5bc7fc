#include "ui/geometry/sparkline_points.h"

#include <gtest/gtest.h>

namespace tarvo::ui {

TEST(NormalizedPoints, AreNoneForOneValueOrOneSample) {
    EXPECT_TRUE(normalizedPoints({}, 60, {100, 20}).empty());
    EXPECT_TRUE(normalizedPoints({50}, 60, {100, 20}).empty());
    EXPECT_TRUE(normalizedPoints({50, 60}, 1, {100, 20}).empty());
}

TEST(NormalizedPoints, EndAtTheRightEdgeAndStartPartWayAcross) {
    const auto points = normalizedPoints({1, 2, 3}, 60, {590, 20});
    ASSERT_EQ(points.size(), 3U);
    EXPECT_DOUBLE_EQ(points.front().x, 590.0 * 57 / 59);
    EXPECT_DOUBLE_EQ(points.back().x, 590);
}

TEST(NormalizedPoints, FillTheFrameWithAFullSeries) {
    const auto points = normalizedPoints(std::vector<double>(60, 10), 60, {118, 20});
    EXPECT_DOUBLE_EQ(points.front().x, 0);
    EXPECT_DOUBLE_EQ(points.back().x, 118);
}

TEST(NormalizedPoints, LeaveTheOldestOfALongerSeriesLeftOfTheFrame) {
    const auto points = normalizedPoints({1, 2, 3, 4}, 3, {10, 10});
    EXPECT_DOUBLE_EQ(points.front().x, -5);
    EXPECT_DOUBLE_EQ(points.back().x, 10);
}

TEST(NormalizedPoints, StandOnAFixedScaleOfPercentages) {
    const auto points = normalizedPoints({0, 25, 100}, 3, {10, 40});
    EXPECT_DOUBLE_EQ(points[0].y, 40);
    EXPECT_DOUBLE_EQ(points[1].y, 30);
    EXPECT_DOUBLE_EQ(points[2].y, 0);
}

TEST(NormalizedPoints, ClampToTheEdges) {
    const auto points = normalizedPoints({-5, 250}, 2, {10, 40});
    EXPECT_DOUBLE_EQ(points[0].y, 40);
    EXPECT_DOUBLE_EQ(points[1].y, 0);
}

} // namespace tarvo::ui
