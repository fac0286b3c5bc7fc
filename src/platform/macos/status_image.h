#pragma once

// Objective-C++ only: for the implementation files of this folder.

#include "platform/status_bar.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {

/// The picture for a status item; nil for none, and for a symbol that this version of the system does not
/// have. A drawing is drawn anew for each screen and appearance.
NSImage* _Nullable statusImage(const StatusImage& image);

} // namespace tarvo::macos_platform
