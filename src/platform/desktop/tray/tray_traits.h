#pragma once

#include <chrono>
#include <string_view>

namespace tarvo::desktop {

/// What a tray does with an item.
struct TrayTraits {
    bool keepsAspect = false; ///< shows a wide picture wide; else it is squeezed into a square
    bool showsLabel = false;  ///< shows the text label beside the picture
    bool reversed = false;    ///< puts the item that was registered last first
    /// What the tray needs after it has read an item, before the next one may come.
    std::chrono::milliseconds pause{0};
    bool operator==(const TrayTraits&) const = default;
};

/// By the name of the process that draws the tray, as the kernel keeps it (15 characters at most).
TrayTraits trayTraits(std::string_view process);

} // namespace tarvo::desktop
