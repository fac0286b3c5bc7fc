#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace tarvo::ui {

/// Makes or deletes rows until there are `count`, so that the rows that stay keep what they show.
template <typename Row, typename Make>
void resizePool(std::vector<Row*>& rows, std::size_t count, Make&& make) {
    while (rows.size() > count) {
        delete rows.back();
        rows.pop_back();
    }
    while (rows.size() < count) {
        Row* row = make();
        row->setVisible(true);
        rows.push_back(row);
    }
}

} // namespace tarvo::ui
