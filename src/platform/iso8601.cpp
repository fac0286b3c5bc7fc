#include "platform/iso8601.h"

#include "platform/clamped_wall_time.h"

#include <cstddef>

namespace tarvo {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::sys_seconds;

void appendDigits(std::string& text, unsigned value, int width) {
    char digits[4];
    for (int i = width; i-- > 0; value /= 10)
        digits[i] = static_cast<char>('0' + value % 10);
    text.append(digits, static_cast<std::size_t>(width));
}

/// Walks over fixed-width fields; once one did not fit, the whole text is refused.
class FieldReader {
public:
    explicit FieldReader(std::string_view text) : text_(text) {}

    int digits(std::size_t width) {
        int value = 0;
        for (std::size_t i = 0; i < width; ++i) {
            const char c = next();
            if (c < '0' || c > '9') fits_ = false;
            value = value * 10 + (c - '0');
        }
        return value;
    }
    void literal(char expected) {
        if (next() != expected) fits_ = false;
    }
    char next() { return position_ < text_.size() ? text_[position_++] : (fits_ = false, '\0'); }
    bool fitsWhole() const { return fits_ && position_ == text_.size(); }

private:
    std::string_view text_;
    std::size_t position_ = 0;
    bool fits_ = true;
};

struct ClockFace {
    int hours = 0;
    int minutes = 0;
    int seconds = 0;

    bool ok() const { return hours < 24 && minutes < 60 && seconds < 60; }
    std::chrono::seconds sinceMidnight() const {
        return std::chrono::seconds((hours * 60 + minutes) * 60 + seconds);
    }
};

ClockFace readHoursAndMinutes(FieldReader& reader) {
    ClockFace face;
    face.hours = reader.digits(2);
    reader.literal(':');
    face.minutes = reader.digits(2);
    return face;
}

std::chrono::year_month_day readDate(FieldReader& reader) {
    const int year = reader.digits(4);
    reader.literal('-');
    const int month = reader.digits(2);
    reader.literal('-');
    const int day = reader.digits(2);
    return {std::chrono::year(year), std::chrono::month(static_cast<unsigned>(month)),
            std::chrono::day(static_cast<unsigned>(day))};
}

} // namespace

void appendISO8601(std::string& text, WallTime time) {
    const auto whole = std::chrono::floor<std::chrono::seconds>(time);
    const auto midnight = std::chrono::floor<days>(whole);
    const std::chrono::year_month_day date(midnight);
    const auto seconds = static_cast<unsigned>((whole - midnight).count());
    appendDigits(text, static_cast<unsigned>(static_cast<int>(date.year())), 4);
    text += '-';
    appendDigits(text, static_cast<unsigned>(date.month()), 2);
    text += '-';
    appendDigits(text, static_cast<unsigned>(date.day()), 2);
    text += 'T';
    appendDigits(text, seconds / 3600, 2);
    text += ':';
    appendDigits(text, seconds / 60 % 60, 2);
    text += ':';
    appendDigits(text, seconds % 60, 2);
    text += 'Z';
}

std::string formatISO8601(WallTime time) {
    std::string text;
    appendISO8601(text, time);
    return text;
}

std::optional<WallTime> parseISO8601(std::string_view text) {
    FieldReader reader(text);
    const auto date = readDate(reader);
    reader.literal('T');
    ClockFace time = readHoursAndMinutes(reader);
    reader.literal(':');
    time.seconds = reader.digits(2);

    ClockFace offset;
    const char zone = reader.next();
    if (zone == '+' || zone == '-') {
        offset = readHoursAndMinutes(reader);
    } else if (zone != 'Z') {
        return std::nullopt;
    }
    if (!reader.fitsWhole() || !date.ok() || !time.ok() || !offset.ok()) return std::nullopt;

    const sys_seconds local = sys_days(date) + time.sinceMidnight();
    return clampedWallTime(zone == '-' ? local + offset.sinceMidnight() : local - offset.sinceMidnight());
}

} // namespace tarvo
