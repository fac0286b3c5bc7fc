#pragma once

#include "core/published.h"
#include "localization/app_language.h"
#include "platform/preference_store.h"

#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// One text in both languages, written where it is used: t({.cs = "Paměť", .en = "Memory"}).
/// It views its texts: a pair that is built with a value inserted is used within the same expression.
struct LKey {
    std::string_view cs;
    std::string_view en;
};

/// Holds the current language and picks texts by it. Main thread only.
class LocalizationManager {
public:
    /// The stored language where there is one; else Czech when `systemLanguageCode` is exactly "cs", English
    /// for every other code and for none. That choice is not stored, so it follows the system until one is
    /// picked.
    LocalizationManager(PreferenceStore& defaults, const std::optional<std::string>& systemLanguageCode);

    /// The instance that the whole process uses; see SharedInstance.
    static LocalizationManager& shared();

    AppLanguage language() const { return *language_; }
    /// Tells the observers, changes the language and stores it, also when it is the same as before.
    void setLanguage(AppLanguage language);
    /// To be told before each change, so that shown texts can be made again in the next turn.
    Published<AppLanguage>& publishedLanguage() { return language_; }

    /// The member of the pair for the current language, as it is: an empty one is not replaced by the other.
    std::string t(const LKey& key) const {
        return std::string(*language_ == AppLanguage::cs ? key.cs : key.en);
    }

private:
    PreferenceStore& defaults_;
    Published<AppLanguage> language_;
};

} // namespace tarvo
