#include "localization/localization_manager.h"

#include "core/setting_keys.h"
#include "core/shared_instance.h"

namespace tarvo {
namespace {

AppLanguage initialLanguage(const PreferenceStore& defaults,
                            const std::optional<std::string>& systemLanguageCode) {
    if (const auto stored = appLanguage(preferenceString(defaults, keys::appLanguage))) return *stored;
    return systemLanguageCode == "cs" ? AppLanguage::cs : AppLanguage::en;
}

} // namespace

LocalizationManager::LocalizationManager(PreferenceStore& defaults,
                                         const std::optional<std::string>& systemLanguageCode)
    : defaults_(defaults), language_(initialLanguage(defaults, systemLanguageCode)) {}

LocalizationManager& LocalizationManager::shared() {
    return SharedInstance<LocalizationManager>::get();
}

void LocalizationManager::setLanguage(AppLanguage language) {
    language_.set(language);
    defaults_.set(keys::appLanguage, std::string(rawValue(language)));
}

} // namespace tarvo
