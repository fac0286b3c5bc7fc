#pragma once

#include "core/notification_center.h"
#include "core/settings.h"

#include <string_view>

namespace tarvo::ui {

/// Writes preferences for the controls that are bound to them, with the type of their row in the table, and
/// tells those who must know at once.
class SettingBindings {
public:
    SettingBindings(Settings& settings, NotificationCenter& notifications)
        : settings_(settings), notifications_(notifications) {}

    void set(std::string_view key, bool value);
    void set(std::string_view key, int value);
    void set(std::string_view key, double value);
    void setText(std::string_view key, std::string_view value);
    void setAccentTheme(AccentTheme theme);

private:
    void store(std::string_view key, PreferenceValue value);

    Settings& settings_;
    NotificationCenter& notifications_;
};

} // namespace tarvo::ui
