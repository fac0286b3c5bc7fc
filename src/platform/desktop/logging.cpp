#include "platform/desktop/logging.h"

namespace tarvo::desktop {

Q_LOGGING_CATEGORY(statusBarLog, "tarvo.statusbar", QtWarningMsg)

} // namespace tarvo::desktop
