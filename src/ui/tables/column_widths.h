#pragma once

#include <span>
#include <vector>

namespace tarvo::ui {

/// What a column asks for, in points.
struct ColumnNeed {
    int ideal = 0;          ///< shows everything
    int least = 0;          ///< below this nothing is readable
    bool stretches = false; ///< takes what is left over and gives way first
};

/// Widths that fill the room: what is left over goes to the stretching columns in equal parts; what is
/// missing is taken from them in proportion to what each can give, then from the others likewise. No column
/// is narrower than its least, even where the room is too small for that.
std::vector<int> fittedColumns(std::span<const ColumnNeed> needs, int room);

} // namespace tarvo::ui
