#pragma once

#include "core/menu_bar_module.h"
#include "localization/app_language.h"

#include <string_view>

namespace tarvo {

/// The module's name for people, e.g. "Memory" or "Paměť".
std::string_view label(MenuBarModule module, AppLanguage language);
/// The system symbol that stands for the module, e.g. "memorychip.fill".
std::string_view symbolName(MenuBarModule module);

} // namespace tarvo
