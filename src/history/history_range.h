#pragma once

#include <optional>

namespace tarvo {

/// How far back a view looks.
enum class HistoryRange { live = 0, day = 1, week = 2, twoWeeks = 3 };

/// Absent for a raw value that is none of the cases.
constexpr std::optional<HistoryRange> historyRange(int rawValue) {
    if (rawValue < 0 || rawValue > 3) return std::nullopt;
    return static_cast<HistoryRange>(rawValue);
}

/// Hours that the detail window's overview asks of the store.
constexpr double overviewHours(HistoryRange range) {
    switch (range) {
    case HistoryRange::live:
        return 1;
    case HistoryRange::day:
        return 24;
    case HistoryRange::week:
        return 168;
    case HistoryRange::twoWeeks:
        return 336;
    }
    return 0;
}

/// Hours that the popover's history card asks of the store; its live range shows no stored samples.
constexpr double popoverHours(HistoryRange range) {
    return range == HistoryRange::live ? 0 : overviewHours(range);
}

} // namespace tarvo
