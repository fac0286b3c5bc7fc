#include "ui/tables/column_widths.h"

#include <algorithm>
#include <cstdint>

namespace tarvo::ui {
namespace {

int sum(const std::vector<int>& widths) {
    int total = 0;
    for (const int width : widths)
        total += width;
    return total;
}

// Gives a column a part of the rest at a time, so that nothing is lost by rounding.
void widen(std::span<const ColumnNeed> needs, std::vector<int>& widths, int spare) {
    auto stretching = static_cast<int>(
        std::count_if(needs.begin(), needs.end(), [](const ColumnNeed& need) { return need.stretches; }));
    for (std::size_t column = 0; column < needs.size() && stretching > 0; ++column) {
        if (!needs[column].stretches) continue;
        const int part = spare / stretching--;
        widths[column] += part;
        spare -= part;
    }
}

void narrow(std::span<const ColumnNeed> needs, std::vector<int>& widths, int missing, bool stretching) {
    const auto gives = [&](std::size_t column) {
        const bool isAsked = needs[column].stretches == stretching;
        return isAsked ? std::max(0, widths[column] - needs[column].least) : 0;
    };
    std::int64_t available = 0;
    for (std::size_t column = 0; column < needs.size(); ++column)
        available += gives(column);
    std::int64_t taken = std::min<std::int64_t>(missing, available);
    for (std::size_t column = 0; column < needs.size() && available > 0; ++column) {
        const int most = gives(column);
        const auto part = static_cast<int>(taken * most / available);
        available -= most;
        taken -= part;
        widths[column] -= part;
    }
}

} // namespace

std::vector<int> fittedColumns(std::span<const ColumnNeed> needs, int room) {
    std::vector<int> widths;
    widths.reserve(needs.size());
    for (const ColumnNeed& need : needs)
        widths.push_back(std::max(need.ideal, need.least));
    if (sum(widths) <= room) {
        widen(needs, widths, room - sum(widths));
        return widths;
    }
    narrow(needs, widths, sum(widths) - room, true);
    if (sum(widths) > room) narrow(needs, widths, sum(widths) - room, false);
    return widths;
}

} // namespace tarvo::ui
