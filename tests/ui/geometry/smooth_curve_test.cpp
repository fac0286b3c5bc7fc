#include "ui/geometry/smooth_curve.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace tarvo::ui {
namespace {

double heightAt(DrawPoint start, const CurvePiece& piece, double t) {
    const double u = 1 - t;
    return u * u * u * start.y + 3 * u * u * t * piece.control1.y + 3 * u * t * t * piece.control2.y +
           t * t * t * piece.end.y;
}

} // namespace

TEST(SmoothCurve, IsEmptyBelowTwoPoints) {
    EXPECT_TRUE(smoothCurve({}).empty());
    EXPECT_TRUE(smoothCurve({{1, 1}}).empty());
}

TEST(SmoothCurve, PassesThroughEveryPoint) {
    const std::vector<DrawPoint> points{{0, 1}, {3, 8}, {4, 2}};
    const auto pieces = smoothCurve(points);
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_EQ(pieces[0].end, points[1]);
    EXPECT_EQ(pieces[1].end, points[2]);
}

TEST(SmoothCurve, NeverSwingsBeyondItsNeighbours) {
    const std::vector<DrawPoint> points{{0, 0}, {1, 0}, {2, 100}, {3, 100}, {3.1, 0}, {9, 40}, {10, 41}};
    const auto pieces = smoothCurve(points);
    for (std::size_t index = 0; index < pieces.size(); ++index) {
        const auto [low, high] = std::minmax(points[index].y, points[index + 1].y);
        for (double t = 0; t <= 1; t += 0.05) {
            const double y = heightAt(points[index], pieces[index], t);
            EXPECT_GE(y, low - 1e-9) << "piece " << index << " at " << t;
            EXPECT_LE(y, high + 1e-9) << "piece " << index << " at " << t;
        }
    }
}

TEST(SmoothCurve, KeepsAStraightLineStraight) {
    for (const CurvePiece& piece : smoothCurve({{0, 0}, {1, 2}, {2, 4}})) {
        EXPECT_NEAR(piece.control1.y, 2 * piece.control1.x, 1e-9);
        EXPECT_NEAR(piece.control2.y, 2 * piece.control2.x, 1e-9);
    }
}

TEST(SmoothCurve, BearsTwoPointsAtOnePlace) {
    const auto pieces = smoothCurve({{1, 0}, {1, 50}, {2, 10}});
    ASSERT_EQ(pieces.size(), 2U);
    EXPECT_DOUBLE_EQ(pieces[0].control1.x, 1);
    EXPECT_DOUBLE_EQ(pieces[0].control1.y, 0);
}

} // namespace tarvo::ui
