#include "platform/linux/dark_mode_means.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <utility>

namespace tarvo::linux_platform {
namespace {

using Commands = std::vector<ToolCommand>;
using Folders = std::vector<std::string>;

constexpr std::array<std::string_view, 2> darkSuffixes{"-dark", "-Dark"};
constexpr std::array<std::string_view, 2> lightSuffixes{"-light", "-Light"};

bool isInstalled(const std::string& theme, const Folders& folders) {
    if (theme == "Adwaita") return true; // built into the toolkit
    return std::any_of(folders.begin(), folders.end(), [&](const std::string& folder) {
        std::error_code failed;
        return std::filesystem::is_directory(folder + "/" + theme, failed);
    });
}

/// The name without one of the suffixes; absent when it has none.
std::optional<std::string> without(const std::string& name, const std::array<std::string_view, 2>& suffixes) {
    for (const auto suffix : suffixes) {
        if (name.size() > suffix.size() && name.ends_with(suffix))
            return name.substr(0, name.size() - suffix.size());
    }
    return std::nullopt;
}

std::vector<std::string> siblingNames(const std::string& theme) {
    std::vector<std::string> names;
    const auto add = [&](const std::string& base, const auto& suffixes) {
        for (const auto suffix : suffixes)
            names.push_back(base + std::string(suffix));
    };
    if (const auto base = without(theme, darkSuffixes)) {
        names.push_back(*base);
        add(*base, lightSuffixes);
    } else {
        add(without(theme, lightSuffixes).value_or(theme), darkSuffixes);
    }
    return names;
}

ToolCommand setCommand(const std::string& schema, const std::string& key, const std::string& value) {
    return {"gsettings", {"set", schema, key, value}};
}

/// The desktop's colour scheme and, for programs that do not know it, the theme.
ActionMeans schemeAndTheme(const std::string& schema, const Folders& folders) {
    return {{"gsettings"},
            {},
            ToolCommand{"gsettings", {"list-recursively", schema}},
            [schema, folders](std::string_view listing) {
                Commands commands;
                const std::string scheme = settingIn(listing, "color-scheme");
                const std::string other = scheme == "prefer-dark" ? "default" : "prefer-dark";
                if (!scheme.empty()) commands.push_back(setCommand(schema, "color-scheme", other));
                const std::string theme = settingIn(listing, "gtk-theme");
                const bool isDark = without(theme, darkSuffixes).has_value();
                // A theme that is already as wished is left alone.
                if (!scheme.empty() && isDark == (other == "prefer-dark")) return commands;
                const std::string sibling = siblingTheme(theme, folders);
                if (!sibling.empty()) commands.push_back(setCommand(schema, "gtk-theme", sibling));
                return commands;
            }};
}

std::string_view withoutBlankEnd(std::string_view text) {
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' '))
        text.remove_suffix(1);
    return text;
}

ActionMeans xfceTheme(const Folders& folders) {
    return {{"xfconf-query"},
            {},
            ToolCommand{"xfconf-query", {"-c", "xsettings", "-p", "/Net/ThemeName"}},
            [folders](std::string_view answer) {
                const std::string sibling = siblingTheme(std::string(withoutBlankEnd(answer)), folders);
                if (sibling.empty()) return Commands{};
                return Commands{{"xfconf-query", {"-c", "xsettings", "-p", "/Net/ThemeName", "-s", sibling}}};
            }};
}

/// The colour schemes of a listing such as " * BreezeDark (current color scheme)".
struct ColorSchemes {
    std::vector<std::string> names;
    std::string current;
};

ColorSchemes colorSchemesIn(std::string_view listing) {
    ColorSchemes schemes;
    while (!listing.empty()) {
        const auto end = std::min(listing.find('\n'), listing.size());
        auto line = listing.substr(0, end);
        listing.remove_prefix(std::min(end + 1, listing.size()));
        const auto mark = line.find("* ");
        if (mark == std::string_view::npos) continue;
        line.remove_prefix(mark + 2);
        const auto note = line.find(" (");
        schemes.names.emplace_back(withoutBlankEnd(line.substr(0, note)));
        if (note != std::string_view::npos) schemes.current = schemes.names.back();
    }
    return schemes;
}

std::string otherColorScheme(const ColorSchemes& schemes) {
    const auto place = schemes.current.find("Dark");
    const bool isDark = place != std::string::npos;
    std::string sibling = schemes.current;
    if (isDark) {
        sibling.replace(place, 4, "Light");
    } else if (const auto light = sibling.find("Light"); light != std::string::npos) {
        sibling.replace(light, 5, "Dark");
    }
    const bool isKnown = sibling != schemes.current && std::find(schemes.names.begin(), schemes.names.end(),
                                                                 sibling) != schemes.names.end();
    return isKnown ? sibling : isDark ? "BreezeLight" : "BreezeDark";
}

ActionMeans plasmaColorScheme() {
    return {{"plasma-apply-colorscheme"},
            {},
            ToolCommand{"plasma-apply-colorscheme", {"--list-schemes"}},
            [](std::string_view listing) {
                return Commands{{"plasma-apply-colorscheme", {otherColorScheme(colorSchemesIn(listing))}}};
            }};
}

} // namespace

std::vector<ActionMeans> darkModeMeans(const DesktopEnvironment& environment) {
    switch (environment.desktop) {
    case Desktop::gnome:
        return {schemeAndTheme("org.gnome.desktop.interface", environment.themeFolders)};
    case Desktop::cinnamon:
        return {schemeAndTheme("org.x.apps.portal", environment.themeFolders)};
    case Desktop::mate:
        return {schemeAndTheme("org.mate.interface", environment.themeFolders)};
    case Desktop::kde:
        return {plasmaColorScheme()};
    case Desktop::xfce:
        return {xfceTheme(environment.themeFolders)};
    default:
        return {};
    }
}

std::string siblingTheme(const std::string& theme, const std::vector<std::string>& folders) {
    if (theme.empty() || theme.find('/') != std::string::npos) return {};
    for (const std::string& name : siblingNames(theme)) {
        if (isInstalled(name, folders)) return name;
    }
    return {};
}

std::string settingIn(std::string_view listing, std::string_view key) {
    while (!listing.empty()) {
        const auto end = std::min(listing.find('\n'), listing.size());
        auto line = listing.substr(0, end);
        listing.remove_prefix(std::min(end + 1, listing.size()));
        const auto schemaEnd = line.find(' ');
        if (schemaEnd == std::string_view::npos) continue;
        line.remove_prefix(schemaEnd + 1);
        if (!line.starts_with(key) || line.size() <= key.size() || line[key.size()] != ' ') continue;
        line = withoutBlankEnd(line.substr(key.size() + 1));
        const bool isQuoted = line.size() >= 2 && line.front() == '\'' && line.back() == '\'';
        return std::string(isQuoted ? line.substr(1, line.size() - 2) : line);
    }
    return {};
}

} // namespace tarvo::linux_platform
