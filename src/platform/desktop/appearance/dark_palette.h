#pragma once

#include <QPalette>

namespace tarvo::desktop {

/// Colours for a desktop that wishes dark ones while the toolkit knows only light ones.
QPalette darkPalette();

/// Gives the application dark colours where the desktop wishes them and the toolkit's own are light; else the
/// toolkit's own. Needs the QApplication; main thread only.
void followColorScheme(bool prefersDark);

} // namespace tarvo::desktop
