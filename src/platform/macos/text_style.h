#pragma once

// Objective-C++ only: for the implementation files of this folder.

#include "platform/status_bar.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {

/// The system's own colour; it follows light and dark by itself.
NSColor* systemColor(SystemColor color);

/// The system font in that size and weight.
NSFont* systemFont(const TextFont& font);

NSAttributedString* attributedString(const AttributedTitle& title);

} // namespace tarvo::macos_platform
