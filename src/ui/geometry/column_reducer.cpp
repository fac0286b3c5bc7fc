#include "ui/geometry/column_reducer.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tarvo::ui {

ColumnReducer::ColumnReducer(double columns) {
    points_.reserve(static_cast<std::size_t>(std::clamp(columns, 0.0, 16384.0)) + 8);
}

void ColumnReducer::add(DrawPoint point) {
    const double number = std::floor(point.x);
    if (column_ && column_->number != number) flush();
    if (!column_) {
        column_ = Column{number, point, point, point, point};
        return;
    }
    if (point.y > column_->lowest.y) column_->lowest = point;
    if (point.y < column_->highest.y) column_->highest = point;
    column_->last = point;
}

std::vector<DrawPoint> ColumnReducer::take() {
    if (column_) flush();
    return std::exchange(points_, {});
}

void ColumnReducer::flush() {
    append(column_->first);
    const bool rises = column_->highest.x > column_->lowest.x;
    append(rises ? column_->lowest : column_->highest);
    append(rises ? column_->highest : column_->lowest);
    append(column_->last);
    column_.reset();
}

void ColumnReducer::append(DrawPoint point) {
    if (points_.empty() || points_.back() != point) points_.push_back(point);
}

} // namespace tarvo::ui
