#pragma once

#include "ui/geometry/time_axis.h"

#include <QLocale>
#include <QString>

namespace tarvo::ui {

/// The local time zone of this system, clock changes included.
UTCOffset systemUTCOffset();

/// What stands under a mark: the hour ("18" or "6 PM"), the narrow weekday ("M") or day and month
/// ("21. 11.").
QString axisText(AxisLabel label, WallTime mark, const UTCOffset& offset, const QLocale& locale);

} // namespace tarvo::ui
