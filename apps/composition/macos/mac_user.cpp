#include "composition/user.h"
#include "platform/macos/application_support.h"
#include "platform/macos/defaults_preference_store.h"
#include "platform/macos/system_language.h"

namespace tarvo {

using namespace macos_platform;

// The system hands every change of the defaults to all who read them, so that there is nothing to read again.
User openUser(Clock&) {
    return {.preferences = std::make_unique<DefaultsPreferenceStore>(),
            .reloadPreferences = [] { return false; },
            .languageCode = systemLanguageCode,
            .dataFolder = applicationSupportFolder().value_or(std::string())};
}

} // namespace tarvo
