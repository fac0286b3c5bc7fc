#pragma once

#include <QRect>
#include <QWindow>

namespace tarvo::desktop {

/// True where windows can be docks: the program talks to an X server.
bool canDock();

/// Declares the window a dock that reserves the strip of the screen above its bottom edge. To be called after
/// the native window exists and before it is shown, and again when it moved. `strip` in native pixels of the
/// root window. Properties as in the Extended Window Manager Hints.
void dockAtTop(QWindow& window, const QRect& strip);

/// Height in native pixels that other programs' docks reserve at the top of the root window above these
/// columns. Once the window is shown, docks that stand lower do not count, so that two bars do not drive each
/// other down the screen.
int topReservedByOthers(const QWindow& window, int left, int right);

} // namespace tarvo::desktop
