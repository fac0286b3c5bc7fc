#include "platform/macos/application_activation.h"

#import <AppKit/AppKit.h>

namespace tarvo::macos_platform {

void setActivationPolicy(ActivationPolicy policy) {
    [NSApplication.sharedApplication setActivationPolicy:policy == ActivationPolicy::regular
                                                             ? NSApplicationActivationPolicyRegular
                                                             : NSApplicationActivationPolicyAccessory];
}

void activateIgnoringOtherApps() {
    [NSApplication.sharedApplication activateIgnoringOtherApps:YES];
}

} // namespace tarvo::macos_platform
