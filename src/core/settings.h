#pragma once

#include "platform/preference_store.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace tarvo {

/// The six modules of the status bar, in the order used everywhere.
enum class MenuBarModule { cpu, mem, battery, temp, disk, network };
/// What the combined status item shows.
enum class MenuBarStyle { text = 0, graph = 1, icon = 2 };
enum class AccentTheme { blue, purple, green, orange, pink, red, teal, graphite };

/// Typed access to the preferences with their defaults; nothing is cached, so a changed preference holds from its
/// next reading on. The key table in settings.cpp is the one source of every key and default. Main thread only.
class Settings {
public:
    explicit Settings(PreferenceStore& defaults) : defaults_(defaults) {}

    PreferenceStore& defaults() const { return defaults_; }

    double refreshInterval() const; ///< seconds, always greater than 0
    bool notificationsEnabled() const;
    double cpuAlertThreshold() const; ///< percent
    double diskFreeAlertGB() const;
    double batteryAlertPercent() const;
    bool usesFahrenheit() const;
    MenuBarStyle menuBarStyle() const;
    bool modularMenuBar() const;
    bool stackedModularLabels() const;
    bool isMenuBarModuleEnabled(MenuBarModule module) const;
    AccentTheme accentTheme() const;
    void setAccentTheme(AccentTheme theme);
    bool wifiSSIDEnabled() const;
    /// Visibility of a popover section by its key's second part, e.g. "gauges" for show.gauges.
    bool showsSection(std::string_view section) const;

    /// "22 °C" or "71 °F" for a temperature in degrees Celsius.
    std::string formatTemperature(double celsius) const;

private:
    PreferenceStore& defaults_;
};

} // namespace tarvo
