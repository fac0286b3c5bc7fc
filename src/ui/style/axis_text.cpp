#include "ui/style/axis_text.h"

#include <QDateTime>
#include <QRegularExpression>
#include <QTimeZone>

namespace tarvo::ui {
namespace {

std::int64_t secondsSinceEpoch(WallTime time) {
    return std::chrono::floor<std::chrono::seconds>(time.time_since_epoch()).count();
}

bool usesHalfDays(const QLocale& locale) {
    return locale.timeFormat(QLocale::ShortFormat).contains(u'a', Qt::CaseInsensitive);
}

// The locale's short date without its year, and without what only separated the year from the rest.
QString dayAndMonthFormat(const QLocale& locale) {
    static const QRegularExpression leadingYear(QStringLiteral("^y+[^dM]*"));
    static const QRegularExpression trailingYear(QStringLiteral("[\\s/,-]*('[^']*'\\s*)?y+.*$"));
    return locale.dateFormat(QLocale::ShortFormat).remove(leadingYear).remove(trailingYear);
}

} // namespace

UTCOffset systemUTCOffset() {
    return [zone = QTimeZone::systemTimeZone()](WallTime time) {
        const QDateTime moment = QDateTime::fromSecsSinceEpoch(secondsSinceEpoch(time), Qt::UTC);
        return std::chrono::seconds(zone.isValid() ? zone.offsetFromUtc(moment) : 0);
    };
}

QString axisText(AxisLabel label, WallTime mark, const UTCOffset& offset, const QLocale& locale) {
    // The local clock's reading, carried by a UTC date so that nothing shifts it again.
    const QDateTime local =
        QDateTime::fromSecsSinceEpoch(secondsSinceEpoch(mark) + offset(mark).count(), Qt::UTC);
    switch (label) {
    case AxisLabel::hour:
        return locale.toString(local.time(), usesHalfDays(locale) ? "h AP" : "HH");
    case AxisLabel::narrowWeekday:
        return locale.standaloneDayName(local.date().dayOfWeek(), QLocale::NarrowFormat);
    case AxisLabel::dayAndMonth:
        return locale.toString(local.date(), dayAndMonthFormat(locale));
    }
    return {};
}

} // namespace tarvo::ui
