#pragma once

namespace tarvo::ui {

/// Below, equal to or above 0 for values that are ordered by "less than".
template <typename Value>
constexpr int threeWay(const Value& first, const Value& second) {
    if (first < second) return -1;
    return second < first ? 1 : 0;
}

} // namespace tarvo::ui
