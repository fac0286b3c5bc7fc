#include "platform/linux/system_language.h"

#include <string_view>

namespace tarvo::linux_platform {
namespace {

/// "cs" of "cs_CZ.UTF-8@euro"; absent for the C locale.
std::optional<std::string> languagePart(std::string_view locale) {
    const auto language = locale.substr(0, locale.find_first_of("_.@"));
    if (language.empty() || language == "C" || language == "POSIX") return std::nullopt;
    return std::string(language);
}

std::string messagesLocale(const Environment& environment) {
    for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (auto value = environment(name); value && !value->empty()) return *value;
    }
    return {};
}

/// The first entry that is not empty of a list like "cs:en".
std::string_view firstLanguage(std::string_view list) {
    const auto begin = list.find_first_not_of(':');
    return begin == std::string_view::npos ? std::string_view()
                                           : list.substr(begin, list.find(':', begin) - begin);
}

} // namespace

std::optional<std::string> systemLanguageCode(const Environment& environment) {
    const auto code = languagePart(messagesLocale(environment));
    if (!code) return std::nullopt;
    const std::string list = environment("LANGUAGE").value_or("");
    const auto preferred = firstLanguage(list);
    return preferred.empty() ? code : languagePart(preferred);
}

} // namespace tarvo::linux_platform
