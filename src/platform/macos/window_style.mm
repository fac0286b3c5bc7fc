#include "platform/macos/window_style.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {

double extendContentBelowTitleBar(std::uintptr_t view) {
    NSWindow* const window = ((__bridge NSView*)reinterpret_cast<void*>(view)).window;
    if (window == nil) return 0;
    window.styleMask |= NSWindowStyleMaskFullSizeContentView;
    window.titlebarAppearsTransparent = YES;
    window.collectionBehavior |= NSWindowCollectionBehaviorFullScreenPrimary;
    window.restorable = NO;
    return window.frame.size.height - window.contentLayoutRect.size.height;
}

} // namespace tarvo::macos_platform
