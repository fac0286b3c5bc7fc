#include "platform/linux/iso_time.h"

#include "platform/clamped_wall_time.h"
#include "platform/local_time.h"

#include <algorithm>
#include <string>

namespace tarvo::linux_platform {

namespace {

constexpr std::string_view pattern = "yyyy-MM-ddTHH:mm:ss";

bool isDigit(char character) {
    return character >= '0' && character <= '9';
}

/// What follows a fraction of a second; the text itself when there is none.
std::optional<std::string_view> pastFraction(std::string_view text) {
    if (!text.starts_with('.') && !text.starts_with(',')) return text;
    const auto* const end = std::find_if_not(text.begin() + 1, text.end(), isDigit);
    if (end == text.begin() + 1) return std::nullopt;
    return text.substr(static_cast<std::size_t>(end - text.begin()));
}

int twoDigits(std::string_view text) {
    return (text[0] - '0') * 10 + (text[1] - '0');
}

/// East of Greenwich; absent for a text of another form.
std::optional<std::chrono::minutes> zoneOffset(std::string_view zone) {
    if (zone == "Z") return std::chrono::minutes(0);
    std::string digits(zone.substr(std::min<std::size_t>(1, zone.size())));
    if (digits.size() == 5 && digits[2] == ':') digits.erase(2, 1);
    if (digits.size() == 2) digits += "00";
    const bool isSigned = zone.starts_with('+') || zone.starts_with('-');
    if (!isSigned || digits.size() != 4 || !std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    const auto hours = twoDigits(digits);
    const auto minutes = twoDigits(digits.substr(2));
    if (hours > 23 || minutes > 59) return std::nullopt;
    const std::chrono::minutes offset(hours * 60 + minutes);
    return zone.front() == '-' ? -offset : offset;
}

} // namespace

std::optional<WallTime> parseISOTime(std::string_view text) {
    if (text.size() < pattern.size()) return std::nullopt;
    const auto moment = text.substr(0, pattern.size());
    const auto zone = pastFraction(text.substr(pattern.size()));
    if (!zone) return std::nullopt;
    if (zone->empty()) return parseLocalTime(moment, pattern);
    const auto offset = zoneOffset(*zone);
    const auto universal = offset ? parseUniversalTime(moment, pattern) : std::nullopt;
    if (!universal) return std::nullopt;
    return clampedWallTime(std::chrono::floor<std::chrono::seconds>(*universal) - *offset);
}

} // namespace tarvo::linux_platform
