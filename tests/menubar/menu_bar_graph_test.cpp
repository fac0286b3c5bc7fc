#include "menubar/menu_bar_graph.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvo {
namespace {

const std::vector<double> none;

const std::vector<Point>& onlyPoints(const LineDrawing& drawing) {
    EXPECT_EQ(drawing.strokes.size(), 1u);
    return drawing.strokes.at(0).points;
}

TEST(MenuBarGraph, IsEmptyAndOfFullSizeWithFewerThanTwoValuesEach) {
    const auto drawing = renderMenuBarGraph({50}, none, 60);
    EXPECT_EQ(drawing.width, 34);
    EXPECT_EQ(drawing.height, 18);
    EXPECT_TRUE(drawing.strokes.empty());
    EXPECT_TRUE(renderMenuBarGraph({50}, {50}, 60).strokes.empty());
}

TEST(MenuBarGraph, DrawsMemoryInPurpleBelowTheProcessorInBlue) {
    const auto drawing = renderMenuBarGraph({10, 20}, {30, 40}, 60);
    ASSERT_EQ(drawing.strokes.size(), 2u);
    EXPECT_EQ(drawing.strokes[0].color, SystemColor::purple);
    EXPECT_EQ(drawing.strokes[1].color, SystemColor::blue);
    EXPECT_DOUBLE_EQ(drawing.strokes[0].points[0].y, 0.3 * 16 + 1);
    EXPECT_DOUBLE_EQ(drawing.strokes[1].points[0].y, 0.1 * 16 + 1);
    for (const auto& stroke : drawing.strokes)
        EXPECT_EQ(stroke.width, 1.4);
}

TEST(MenuBarGraph, SpansTheWidthWithAFullSeries) {
    const auto drawing = renderMenuBarGraph(std::vector<double>(60, 50.0), none, 60);
    const auto& points = onlyPoints(drawing);
    ASSERT_EQ(points.size(), 60u);
    EXPECT_DOUBLE_EQ(points.front().x, 0);
    EXPECT_NEAR(points[1].x, 34.0 / 59, 1e-9);
    EXPECT_NEAR(points.back().x, 34, 1e-9);
}

TEST(MenuBarGraph, DrawsTwoValuesAsAShortSegmentAtTheRightEdge) {
    const auto drawing = renderMenuBarGraph({0, 100}, none, 60);
    const auto& points = onlyPoints(drawing);
    ASSERT_EQ(points.size(), 2u);
    EXPECT_NEAR(points[0].x, 34.0 * 58 / 59, 1e-9);
    EXPECT_NEAR(points[1].x, 34, 1e-9);
    EXPECT_DOUBLE_EQ(points[0].y, 1);
    EXPECT_DOUBLE_EQ(points[1].y, 17);
}

TEST(MenuBarGraph, ClampsValuesBeyondTheScale) {
    const auto drawing = renderMenuBarGraph({-5, 140, 99.999}, none, 60);
    const auto& points = onlyPoints(drawing);
    EXPECT_DOUBLE_EQ(points[0].y, 1);
    EXPECT_DOUBLE_EQ(points[1].y, 17);
    EXPECT_NEAR(points[2].y, 17, 0.001);
}

TEST(MenuBarGraph, DrawsWhatIsNotANumberAtTheTop) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    const auto drawing =
        renderMenuBarGraph({std::numeric_limits<double>::quiet_NaN(), infinity, -infinity}, none, 60);
    const auto& points = onlyPoints(drawing);
    EXPECT_DOUBLE_EQ(points[0].y, 17);
    EXPECT_DOUBLE_EQ(points[1].y, 17);
    EXPECT_DOUBLE_EQ(points[2].y, 1);
}

TEST(MenuBarGraph, LetsTheOldestValuesFallBeyondTheLeftEdge) {
    const auto drawing = renderMenuBarGraph({1, 2, 3, 4, 5}, none, 3);
    const auto& points = onlyPoints(drawing);
    ASSERT_EQ(points.size(), 5u);
    EXPECT_DOUBLE_EQ(points[0].x, -34);
    EXPECT_DOUBLE_EQ(points[2].x, 0);
    EXPECT_DOUBLE_EQ(points[4].x, 34);
}

TEST(MenuBarGraph, SpansTheWidthWithTwoValuesOfTwo) {
    const auto drawing = renderMenuBarGraph({0, 0}, none, 2);
    const auto& points = onlyPoints(drawing);
    EXPECT_DOUBLE_EQ(points[0].x, 0);
    EXPECT_DOUBLE_EQ(points[1].x, 34);
}

} // namespace
} // namespace tarvo
