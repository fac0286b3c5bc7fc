#include "ui/geometry/smooth_curve.h"

#include <algorithm>
#include <cmath>

namespace tarvo::ui {
namespace {

double slopeBetween(DrawPoint from, DrawPoint to) {
    const double run = to.x - from.x;
    return run > 0 ? (to.y - from.y) / run : 0;
}

// The harmonic mean keeps a tangent within three times both slopes, which is what monotony asks for.
double tangentBetween(double before, double after) {
    if (before * after <= 0) return 0;
    return 2 * before * after / (before + after);
}

} // namespace

std::vector<CurvePiece> smoothCurve(const std::vector<DrawPoint>& points) {
    if (points.size() < 2) return {};
    std::vector<CurvePiece> pieces;
    pieces.reserve(points.size() - 1);
    double slope = slopeBetween(points[0], points[1]);
    double tangent = slope;
    for (std::size_t index = 1; index < points.size(); ++index) {
        const DrawPoint from = points[index - 1];
        const DrawPoint to = points[index];
        const bool isLast = index + 1 == points.size();
        const double nextSlope = isLast ? slope : slopeBetween(to, points[index + 1]);
        const double nextTangent = isLast ? slope : tangentBetween(slope, nextSlope);
        const double third = (to.x - from.x) / 3;
        pieces.push_back(
            {{from.x + third, from.y + tangent * third}, {to.x - third, to.y - nextTangent * third}, to});
        slope = nextSlope;
        tangent = nextTangent;
    }
    return pieces;
}

} // namespace tarvo::ui
