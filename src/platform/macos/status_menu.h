#pragma once

// Objective-C++ only: for the implementation files of this folder.

#include "platform/status_bar.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {

/// The menu of these rows, which keeps what they run.
NSMenu* systemMenu(const Menu& rows);

} // namespace tarvo::macos_platform
