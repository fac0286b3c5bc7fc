#pragma once

#include <cstddef>

namespace tarvo::ui {

/// How many cells of a width stand side by side in a row; at least one, at most `count`.
constexpr int gridColumns(int room, int cellWidth, int gap, std::size_t count) {
    int columns = (room + gap) / (cellWidth + gap);
    if (columns > static_cast<int>(count)) columns = static_cast<int>(count);
    return columns < 1 ? 1 : columns;
}

/// Rows that the cells then take.
constexpr int gridRows(std::size_t count, int columns) {
    return (static_cast<int>(count) + columns - 1) / columns;
}

} // namespace tarvo::ui
