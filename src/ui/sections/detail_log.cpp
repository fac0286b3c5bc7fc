#include "ui/sections/detail_log.h"

namespace tarvo::ui {

Q_LOGGING_CATEGORY(detailLog, "tarvo.detail", QtWarningMsg)

} // namespace tarvo::ui
