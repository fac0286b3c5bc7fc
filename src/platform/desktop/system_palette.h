#pragma once

#include "platform/status_bar.h"

#include <QColor>
#include <QPalette>

namespace tarvo::desktop {

bool isDark(const QPalette& palette);

/// The system colour as it reads well on the palette's window colour.
QColor systemColor(SystemColor color, const QPalette& palette);

} // namespace tarvo::desktop
