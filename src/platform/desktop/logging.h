#pragma once

#include <QLoggingCategory>

namespace tarvo::desktop {

/// For people who look for a fault and for tests. Silent unless asked for with
/// QT_LOGGING_RULES="tarvo.*=true".

/// What the status bar shows and where.
Q_DECLARE_LOGGING_CATEGORY(statusBarLog)
/// When popovers open, close and let go of their content.
Q_DECLARE_LOGGING_CATEGORY(popoverLog)
/// Every widget that is painted.
Q_DECLARE_LOGGING_CATEGORY(paintLog)
/// What became of the hot key, and each press.
Q_DECLARE_LOGGING_CATEGORY(hotKeyLog)
/// What other programs ask for, and how the session ends.
Q_DECLARE_LOGGING_CATEGORY(sessionLog)

} // namespace tarvo::desktop
