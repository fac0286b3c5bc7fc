#include "platform/desktop/logging.h"

namespace tarvo::desktop {

Q_LOGGING_CATEGORY(statusBarLog, "tarvo.statusbar", QtWarningMsg)
Q_LOGGING_CATEGORY(popoverLog, "tarvo.popover", QtWarningMsg)
Q_LOGGING_CATEGORY(paintLog, "tarvo.paint", QtWarningMsg)
Q_LOGGING_CATEGORY(hotKeyLog, "tarvo.hotkey", QtWarningMsg)
Q_LOGGING_CATEGORY(sessionLog, "tarvo.session", QtWarningMsg)

} // namespace tarvo::desktop
