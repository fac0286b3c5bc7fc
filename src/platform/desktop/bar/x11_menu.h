#pragma once

#include <QWindow>

namespace tarvo::desktop {

/// Declares the window a menu that was opened by a click (type POPUP_MENU of the Extended Window Manager
/// Hints), so that window managers and compositors treat it as one. Before it is shown; does nothing without
/// an X server.
void declarePopupMenu(QWindow& window);

} // namespace tarvo::desktop
