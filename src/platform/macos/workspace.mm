#include "platform/macos/workspace.h"

#include "platform/macos/foundation_text.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {

void openAddress(const std::string& address) {
    @autoreleasepool {
        NSURL* const url = [NSURL URLWithString:systemText(address)];
        if (url != nil) [NSWorkspace.sharedWorkspace openURL:url];
    }
}

} // namespace tarvo::macos_platform
