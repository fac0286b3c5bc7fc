#include "composition/user.h"
#include "platform/linux/preference_file.h"
#include "platform/linux/system_language.h"
#include "platform/linux/xdg_directories.h"
#include "platform/posix/environment.h"

#include <utility>

namespace tarvo {

using namespace linux_platform;

User openUser(Clock& clock) {
    auto file = std::make_unique<PreferenceFile>(
        preferenceFilePath(processEnvironment).value_or(std::string()), clock);
    PreferenceFile& preferences = *file;
    return {.preferences = std::move(file),
            .reloadPreferences = [&preferences] { return preferences.reloadIfChanged(); },
            .languageCode = [] { return systemLanguageCode(processEnvironment); },
            .dataFolder = applicationDataFolder(processEnvironment).value_or(std::string())};
}

} // namespace tarvo
