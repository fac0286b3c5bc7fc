#pragma once

namespace tarvo::desktop {

/// Whether the desktop blends windows with what is behind them now: always on Wayland, on X11 while a
/// compositing manager owns its selection (Extended Window Manager Hints), else never.
bool compositesWindows();

} // namespace tarvo::desktop
