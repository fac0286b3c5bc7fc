#include "ui/controls/accent_theme_picker.h"
#include "ui/controls/segmented_control.h"
#include "ui/pages/settings_section.h"
#include "ui/pages/settings_sections.h"

#include <algorithm>
#include <array>

namespace tarvo::ui {
namespace {

constexpr std::array<double, 4> intervals{1, 2, 5, 10};

// Flag and code; only the code where no font has the flag.
std::string shownLanguage(AppLanguage language, const QFont& font) {
    const std::string text = pickerText(language);
    if (canShow(QString::fromStdString(text), font)) return text;
    return text.substr(text.rfind(' ') + 1);
}

class GeneralSection : public SettingsSection {
public:
    GeneralSection(PanelContext& context, QWidget* parent)
        : SettingsSection(context, {.cs = "OBECNÉ", .en = "GENERAL"}, parent) {
        addLanguage();
        addAccent();
        addInterval();
        addTemperatureUnit();
        if (context.launchesAtLogin && context.setLaunchAtLogin) {
            addSwitch({.cs = "Spustit při přihlášení", .en = "Launch at Login"}, {}, context.launchesAtLogin,
                      context.setLaunchAtLogin);
        }
        if (context.hotKeyText) addText(TextRole::placeholder, context.hotKeyText);
    }

private:
    void addLanguage() {
        auto* picker = new SegmentedControl([this](int index) {
            context_.loc.setLanguage(allAppLanguages.at(static_cast<std::size_t>(index)));
        });
        picker->setObjectName(QStringLiteral("appLanguage"));
        addControl({.cs = "Jazyk", .en = "Language"}, picker);
        onRefresh([this, picker] {
            picker->setLabels(
                {shownLanguage(AppLanguage::cs, font()), shownLanguage(AppLanguage::en, font())});
            picker->setChosen(static_cast<int>(context_.loc.language()));
        });
    }

    void addAccent() {
        auto* picker = new AccentThemePicker([this](AccentTheme theme) { bindings_.setAccentTheme(theme); });
        picker->setObjectName(QStringLiteral("accentTheme"));
        addControl({.cs = "Barva zvýraznění", .en = "Accent Color"}, picker, true);
        onRefresh([this, picker] {
            picker->setLanguage(context_.loc);
            picker->setSelected(context_.settings.accentTheme());
        });
    }

    void addInterval() {
        auto* picker = new SegmentedControl([this](int index) {
            bindings_.set(keys::refreshInterval, intervals.at(static_cast<std::size_t>(index)));
            context_.model.restartTimer();
        });
        picker->setObjectName(QStringLiteral("refreshInterval"));
        addControl({.cs = "Interval aktualizace", .en = "Update Interval"}, picker, true);
        onRefresh([this, picker] {
            picker->setLabels({"1 s", "2 s", "5 s", "10 s"});
            const auto* place =
                std::find(intervals.begin(), intervals.end(), context_.settings.refreshInterval());
            if (place != intervals.end()) picker->setChosen(static_cast<int>(place - intervals.begin()));
        });
    }

    void addTemperatureUnit() {
        auto* picker = new SegmentedControl([this](int unit) { bindings_.set(keys::temperatureUnit, unit); });
        picker->setObjectName(QStringLiteral("temperatureUnit"));
        addControl({.cs = "Jednotky teploty", .en = "Temperature Units"}, picker);
        onRefresh([this, picker] {
            picker->setLabels({"°C", "°F"});
            picker->setChosen(context_.settings.usesFahrenheit() ? 1 : 0);
        });
    }
};

} // namespace

SettingsSection* makeGeneralSection(PanelContext& context, QWidget* parent) {
    return new GeneralSection(context, parent);
}

} // namespace tarvo::ui
