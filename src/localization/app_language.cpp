#include "localization/app_language.h"

namespace tarvo {

std::string_view rawValue(AppLanguage language) {
    return language == AppLanguage::cs ? "cs" : "en";
}

std::optional<AppLanguage> appLanguage(std::string_view rawValue) {
    for (const auto language : allAppLanguages) {
        if (rawValue == tarvo::rawValue(language)) return language;
    }
    return std::nullopt;
}

std::string pickerText(AppLanguage language) {
    std::string text = language == AppLanguage::cs ? "🇨🇿 " : "🇬🇧 ";
    for (const char letter : rawValue(language))
        text += static_cast<char>(letter - 'a' + 'A');
    return text;
}

} // namespace tarvo
