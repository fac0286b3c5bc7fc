#pragma once

#include "core/accent_theme.h"
#include "core/menu_bar_module.h"
#include "core/setting_keys.h"
#include "platform/preference_store.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

/// Typed access to the preferences with their defaults; nothing is cached, so a changed preference holds from
/// its next reading on. The table in setting_keys.cpp is the one source of every key and default. Main thread
/// only.
class Settings {
public:
    explicit Settings(PreferenceStore& defaults) : defaults_(defaults) {}

    /// The instance that the whole process uses; see SharedInstance.
    static Settings& shared();

    PreferenceStore& defaults() const { return defaults_; }

    double refreshInterval() const; ///< seconds, always greater than 0
    bool notificationsEnabled() const;
    double cpuAlertThreshold() const;   ///< percent, always greater than 0
    double diskFreeAlertGB() const;     ///< as stored: 0 and less are returned too
    double batteryAlertPercent() const; ///< always greater than 0
    bool usesFahrenheit() const;
    MenuBarStyle menuBarStyle() const;
    bool modularMenuBar() const;
    bool stackedModularLabels() const;
    bool isMenuBarModuleEnabled(MenuBarModule module) const;
    AccentTheme accentTheme() const;
    void setAccentTheme(AccentTheme theme);
    bool wifiSSIDEnabled() const;
    /// The automations that the user chose, in the order in which they were added.
    std::vector<std::string> customShortcuts() const;
    void setCustomShortcuts(std::vector<std::string> names);
    /// Visibility of a popover section by its key's second part, e.g. "gauges" for show.gauges.
    bool showsSection(std::string_view section) const;

    /// The preference of a key, by the row of the table: for controls that are bound to a key.
    /// A key that the table does not hold, or holds with another type, has the default false or 0.
    bool boolean(std::string_view key) const;
    double number(std::string_view key) const;
    std::int64_t integer(std::string_view key) const;

    /// "22 °C" or "71 °F" for a temperature in degrees Celsius.
    std::string formatTemperature(double celsius) const;

private:
    PreferenceStore& defaults_;
};

} // namespace tarvo
