#include "ui/pages/setting_bindings.h"

namespace tarvo::ui {
namespace {

// The settings that the status items are built from.
bool concernsStatusItems(std::string_view key) {
    return key == keys::menuBarStyle || key == keys::modularMenuBar || key == keys::stackedModularLabels ||
           key == keys::accentTheme || key.substr(0, 8) == "menubar.";
}

} // namespace

void SettingBindings::set(std::string_view key, bool value) {
    store(key, value);
}

void SettingBindings::set(std::string_view key, int value) {
    store(key, std::int64_t{value});
}

void SettingBindings::set(std::string_view key, double value) {
    store(key, value);
}

void SettingBindings::setText(std::string_view key, std::string_view value) {
    store(key, std::string(value));
}

void SettingBindings::setAccentTheme(AccentTheme theme) {
    settings_.setAccentTheme(theme);
    notifications_.post(menuBarStyleChanged);
}

void SettingBindings::store(std::string_view key, PreferenceValue value) {
    settings_.defaults().set(key, std::move(value));
    if (concernsStatusItems(key)) notifications_.post(menuBarStyleChanged);
}

} // namespace tarvo::ui
