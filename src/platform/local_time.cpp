#include "platform/local_time.h"

#include "platform/clamped_wall_time.h"

#include <chrono>
#include <ctime>

namespace tarvo {
namespace {

struct Fields {
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;

    int* of(char letter) {
        switch (letter) {
        case 'y':
            return &year;
        case 'M':
            return &month;
        case 'd':
            return &day;
        case 'H':
            return &hour;
        case 'm':
            return &minute;
        case 's':
            return &second;
        default:
            return nullptr;
        }
    }
};

std::optional<Fields> match(std::string_view text, std::string_view pattern) {
    if (text.size() != pattern.size()) return std::nullopt;
    Fields fields;
    for (std::size_t i = 0; i < text.size(); ++i) {
        auto* const field = fields.of(pattern[i]);
        const bool fits = field ? text[i] >= '0' && text[i] <= '9' : text[i] == pattern[i];
        if (!fits) return std::nullopt;
        if (field) *field = *field * 10 + (text[i] - '0');
    }
    return fields;
}

std::chrono::year_month_day dateOf(const Fields& fields) {
    return {std::chrono::year(fields.year), std::chrono::month(static_cast<unsigned>(fields.month)),
            std::chrono::day(static_cast<unsigned>(fields.day))};
}

/// Absent when the text differs from the pattern or names no real date.
std::optional<Fields> parse(std::string_view text, std::string_view pattern) {
    const auto fields = match(text, pattern);
    if (!fields || !dateOf(*fields).ok()) return std::nullopt;
    return fields->hour < 24 && fields->minute < 60 && fields->second < 60 ? fields : std::nullopt;
}

} // namespace

std::optional<WallTime> parseLocalTime(std::string_view text, std::string_view pattern) {
    const auto fields = parse(text, pattern);
    if (!fields) return std::nullopt;
    std::tm local{};
    local.tm_year = fields->year - 1900;
    local.tm_mon = fields->month - 1;
    local.tm_mday = fields->day;
    local.tm_hour = fields->hour;
    local.tm_min = fields->minute;
    local.tm_sec = fields->second;
    local.tm_isdst = -1; // the zone's rules tell
    local.tm_wday = -1;  // stays so when the conversion fails; -1 as a moment is a real one
    const auto moment = std::mktime(&local);
    if (local.tm_wday == -1) return std::nullopt;
    return clampedWallTime(std::chrono::sys_seconds(std::chrono::seconds(moment)));
}

std::optional<WallTime> parseUniversalTime(std::string_view text, std::string_view pattern) {
    const auto fields = parse(text, pattern);
    if (!fields) return std::nullopt;
    return clampedWallTime(std::chrono::sys_days(dateOf(*fields)) + std::chrono::hours(fields->hour) +
                           std::chrono::minutes(fields->minute) + std::chrono::seconds(fields->second));
}

} // namespace tarvo
