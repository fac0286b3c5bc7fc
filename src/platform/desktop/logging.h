#pragma once

#include <QLoggingCategory>

namespace tarvo::desktop {

/// What the status bar shows and where, for people who look for a fault and for tests. Silent unless asked
/// for with QT_LOGGING_RULES="tarvo.*=true".
Q_DECLARE_LOGGING_CATEGORY(statusBarLog)
/// When popovers open and close.
Q_DECLARE_LOGGING_CATEGORY(popoverLog)
/// Every widget that is painted.
Q_DECLARE_LOGGING_CATEGORY(paintLog)

} // namespace tarvo::desktop
