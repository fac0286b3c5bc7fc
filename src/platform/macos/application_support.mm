#include "platform/macos/application_support.h"

#include "platform/macos/foundation_text.h"

namespace tarvo::macos_platform {

std::optional<std::string> applicationSupportFolder() {
    @autoreleasepool {
        NSURL* const place = [NSFileManager.defaultManager URLsForDirectory:NSApplicationSupportDirectory
                                                                  inDomains:NSUserDomainMask]
                                 .firstObject;
        const auto path = utf8Text(place.path);
        if (!path) return std::nullopt;
        return *path + "/Tarvo";
    }
}

} // namespace tarvo::macos_platform
