#include "platform/macos/system_language.h"

#include "platform/macos/foundation_text.h"

namespace tarvo::macos_platform {

std::optional<std::string> systemLanguageCode() {
    @autoreleasepool {
        return utf8Text(NSLocale.currentLocale.languageCode);
    }
}

} // namespace tarvo::macos_platform
