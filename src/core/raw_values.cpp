#include "core/accent_theme.h"
#include "core/menu_bar_module.h"

#include <algorithm>
#include <cstddef>

namespace tarvo {
namespace {

constexpr std::array<std::string_view, allMenuBarModules.size()> moduleNames{"cpu",  "mem",  "battery",
                                                                             "temp", "disk", "network"};
constexpr std::array<std::string_view, allAccentThemes.size()> themeNames{
    "blue", "purple", "green", "orange", "pink", "red", "teal", "graphite"};

/// The case whose name stands at the same place.
template <typename Case, std::size_t Count>
std::optional<Case> caseNamed(std::string_view name, const std::array<std::string_view, Count>& names,
                              const std::array<Case, Count>& cases) {
    const auto found = std::find(names.begin(), names.end(), name);
    if (found == names.end()) return std::nullopt;
    return cases[static_cast<std::size_t>(found - names.begin())];
}

} // namespace

std::string_view rawValue(MenuBarModule module) {
    return moduleNames.at(static_cast<std::size_t>(module));
}

std::optional<MenuBarModule> menuBarModule(std::string_view rawValue) {
    return caseNamed(rawValue, moduleNames, allMenuBarModules);
}

std::string_view rawValue(AccentTheme theme) {
    return themeNames.at(static_cast<std::size_t>(theme));
}

std::optional<AccentTheme> accentTheme(std::string_view rawValue) {
    return caseNamed(rawValue, themeNames, allAccentThemes);
}

} // namespace tarvo
