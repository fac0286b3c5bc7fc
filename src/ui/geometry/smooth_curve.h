#pragma once

#include "ui/geometry/point.h"

#include <vector>

namespace tarvo::ui {

/// A cubic Bezier piece that ends at `end`; it starts where the piece before it ends.
struct CurvePiece {
    DrawPoint control1;
    DrawPoint control2;
    DrawPoint end;
};

/// A smooth curve through points with growing x that never swings beyond its neighbours: between two points
/// it stays between their heights, so no value appears that was not measured (monotone cubic interpolation
/// after Fritsch and Carlson). One piece fewer than points; empty below two.
std::vector<CurvePiece> smoothCurve(const std::vector<DrawPoint>& points);

} // namespace tarvo::ui
