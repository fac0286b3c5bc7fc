#pragma once

#include "platform/application.h"

#include <functional>

class QWidget;

namespace tarvo::desktop {

/// Puts a window's content into it; may be empty.
using WindowFiller = std::function<void(QWidget& window)>;

/// Makes ordinary top-level windows that hold what the filler puts into them.
WindowFactory makeWindowFactory(WindowFiller fill);

} // namespace tarvo::desktop
