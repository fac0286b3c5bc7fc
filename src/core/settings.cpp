#include "core/settings.h"

#include "core/shared_instance.h"

#include <fmt/format.h>

#include <utility>

namespace tarvo {
namespace {

template <typename Value>
Value defaultOf(const Setting* setting) {
    const auto* initial = setting ? std::get_if<Value>(&setting->initial) : nullptr;
    return initial ? *initial : Value{};
}

} // namespace

Settings& Settings::shared() {
    return SharedInstance<Settings>::get();
}

bool Settings::boolean(std::string_view key) const {
    if (!defaults_.object(key)) return defaultOf<bool>(findSetting(key));
    return preferenceBool(defaults_, key);
}

double Settings::number(std::string_view key) const {
    const auto* setting = findSetting(key);
    if (!defaults_.object(key)) return defaultOf<double>(setting);
    const double stored = preferenceDouble(defaults_, key);
    const bool refused = setting && setting->rule == SettingRule::onlyPositive && !(stored > 0);
    return refused ? defaultOf<double>(setting) : stored;
}

std::int64_t Settings::integer(std::string_view key) const {
    if (!defaults_.object(key)) return defaultOf<int>(findSetting(key));
    return preferenceInteger(defaults_, key);
}

double Settings::refreshInterval() const {
    return number(keys::refreshInterval);
}
bool Settings::notificationsEnabled() const {
    return boolean(keys::notificationsEnabled);
}
double Settings::cpuAlertThreshold() const {
    return number(keys::cpuAlertThreshold);
}
double Settings::diskFreeAlertGB() const {
    return number(keys::diskFreeAlertGB);
}
double Settings::batteryAlertPercent() const {
    return number(keys::batteryAlertPercent);
}
bool Settings::usesFahrenheit() const {
    return integer(keys::temperatureUnit) == 1;
}
bool Settings::modularMenuBar() const {
    return boolean(keys::modularMenuBar);
}
bool Settings::stackedModularLabels() const {
    return boolean(keys::stackedModularLabels);
}
bool Settings::wifiSSIDEnabled() const {
    return boolean(keys::wifiSSIDEnabled);
}

MenuBarStyle Settings::menuBarStyle() const {
    switch (integer(keys::menuBarStyle)) {
    case 1:
        return MenuBarStyle::graph;
    case 2:
        return MenuBarStyle::icon;
    default:
        return MenuBarStyle::text;
    }
}

bool Settings::isMenuBarModuleEnabled(MenuBarModule module) const {
    return boolean(fmt::format("menubar.{}", rawValue(module)));
}

std::vector<std::string> Settings::customShortcuts() const {
    const auto stored = defaults_.object(keys::customShortcuts);
    const auto* names = stored ? std::get_if<std::vector<std::string>>(&*stored) : nullptr;
    return names ? *names : std::vector<std::string>();
}

void Settings::setCustomShortcuts(std::vector<std::string> names) {
    defaults_.set(keys::customShortcuts, std::move(names));
}

bool Settings::showsSection(std::string_view section) const {
    return boolean(fmt::format("show.{}", section));
}

AccentTheme Settings::accentTheme() const {
    return tarvo::accentTheme(preferenceString(defaults_, keys::accentTheme)).value_or(AccentTheme::blue);
}

void Settings::setAccentTheme(AccentTheme theme) {
    defaults_.set(keys::accentTheme, std::string(rawValue(theme)));
}

std::string Settings::formatTemperature(double celsius) const {
    if (usesFahrenheit()) return fmt::format("{:.0f} °F", celsius * 9 / 5 + 32);
    return fmt::format("{:.0f} °C", celsius);
}

} // namespace tarvo
