#pragma once

namespace tarvo::ui {

/// A position in a drawing; y grows downwards.
struct DrawPoint {
    double x = 0;
    double y = 0;
    bool operator==(const DrawPoint&) const = default;
};

struct DrawSize {
    double width = 0;
    double height = 0;
};

} // namespace tarvo::ui
