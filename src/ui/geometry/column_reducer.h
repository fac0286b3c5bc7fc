#pragma once

#include "ui/geometry/point.h"

#include <optional>
#include <vector>

namespace tarvo::ui {

/// Reduces a long line to what a picture can show: of the points that fall into one column (a unit of x) at
/// most four stay, the first, the lowest, the highest and the last, in their order. So every peak survives
/// and the line looks the same as if all its points had been drawn. Points come in order of x.
class ColumnReducer {
public:
    /// `columns` is the width of the picture; it bounds the result to about four points each.
    explicit ColumnReducer(double columns);

    void add(DrawPoint point);
    /// The reduced line; the reducer is empty afterwards.
    std::vector<DrawPoint> take();

private:
    struct Column {
        double number = 0;
        DrawPoint first, lowest, highest, last;
    };
    void flush();
    void append(DrawPoint point);

    std::vector<DrawPoint> points_;
    std::optional<Column> column_;
};

} // namespace tarvo::ui
