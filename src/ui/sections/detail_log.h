#pragma once

#include <QLoggingCategory>

namespace tarvo::ui {

/// What the detail window shows, for people who look for a fault and for tests. Silent unless asked for with
/// QT_LOGGING_RULES="tarvo.*=true".
Q_DECLARE_LOGGING_CATEGORY(detailLog)

} // namespace tarvo::ui
