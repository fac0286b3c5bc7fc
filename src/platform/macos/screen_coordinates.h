#pragma once

#include "platform/status_bar.h"

namespace tarvo::macos_platform {

/// The system counts upwards from the bottom of its first screen, the program downwards from that screen's
/// top; the other screens lie around it in both. The same rectangle for the program.
inline Rect fromTop(const Rect& fromBottom, double firstScreenHeight) {
    return {fromBottom.x, firstScreenHeight - (fromBottom.y + fromBottom.height), fromBottom.width,
            fromBottom.height};
}

} // namespace tarvo::macos_platform
