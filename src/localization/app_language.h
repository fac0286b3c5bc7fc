#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo {

/// The two languages of the program, in the order in which the language picker shows them.
enum class AppLanguage { cs, en };

inline constexpr std::array allAppLanguages{AppLanguage::cs, AppLanguage::en};

/// The text under which a language is stored: "cs" or "en".
std::string_view rawValue(AppLanguage language);
/// Absent for any text that is not exactly a raw value ("CS" and "en-US" are none).
std::optional<AppLanguage> appLanguage(std::string_view rawValue);
/// What the language picker shows: the flag, a space and the upper-case code. The same in both languages.
std::string pickerText(AppLanguage language);

} // namespace tarvo
