#include "ui/pages/settings_page.h"

#include "ui/controls/accent_theme_picker.h"
#include "ui/controls/module_toggle_tile.h"
#include "ui/controls/segmented_control.h"
#include "ui/panel_fixture.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <gmock/gmock.h>

#include <memory>

namespace tarvo::ui {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

struct SettingsPageTest : ::testing::Test {
    SettingsPageTest() {
        subscription = parts.notifications.observe(menuBarStyleChanged, [this] { ++styleChanges; });
        open();
    }
    void open() {
        page = std::make_unique<SettingsPage>(context, [this] { parts.asked.push_back("back"); });
        page->resize(360, 600);
        page->show();
        QApplication::processEvents();
    }
    template <typename Control>
    Control& control(std::string_view name) {
        for (QWidget* widget :
             page->findChildren<QWidget*>(QString::fromUtf8(name.data(), qsizetype(name.size())))) {
            if (auto* found = dynamic_cast<Control*>(widget)) return *found;
        }
        throw std::logic_error("no such control");
    }
    QAbstractButton& button(const std::string& name) { return *buttonNamed(*page, name); }
    std::string texts() const {
        QApplication::processEvents();
        return shownTexts(*page);
    }

    PanelParts parts;
    PanelContext context = parts.context();
    int styleChanges = 0;
    Subscription subscription;
    std::unique_ptr<SettingsPage> page;
};

} // namespace

TEST_F(SettingsPageTest, HasATileForEveryVisibilityFlag) {
    for (const Setting& setting : settingTable()) {
        if (!setting.key.starts_with("show.")) continue;
        auto& tile = control<ModuleToggleTile>(setting.key);
        const bool before = parts.settings.boolean(setting.key);
        EXPECT_EQ(tile.isOn(), before) << setting.key;
        tile.click();
        EXPECT_EQ(parts.settings.boolean(setting.key), !before) << setting.key;
        tile.toggle(); // as assistive technology does
        EXPECT_EQ(parts.settings.boolean(setting.key), before) << setting.key;
    }
    EXPECT_EQ(styleChanges, 0);
}

TEST_F(SettingsPageTest, HasATileForEveryModuleAndTellsTheStatusBar) {
    for (const MenuBarModule module : allMenuBarModules) {
        const std::string key = "menubar." + std::string(rawValue(module));
        const bool before = parts.settings.isMenuBarModuleEnabled(module);
        EXPECT_EQ(control<ModuleToggleTile>(key).isOn(), before) << key;
        control<ModuleToggleTile>(key).click();
        EXPECT_EQ(parts.settings.isMenuBarModuleEnabled(module), !before) << key;
    }
    EXPECT_EQ(styleChanges, 6);
}

TEST_F(SettingsPageTest, SaysWhatBecameOfTheHotKeyAndAgainWhenThatChanges) {
    std::string state = "The hot key is asked for.";
    context.hotKeyText = [&] { return state; };
    open();
    EXPECT_THAT(texts(), HasSubstr("The hot key is asked for."));
    state = "The hot key works.";
    EXPECT_THAT(texts(), Not(HasSubstr("The hot key works."))) << "nobody has said so";
    parts.notifications.post(hotKeyStateChanged);
    EXPECT_THAT(texts(), HasSubstr("The hot key works."));
    page->hide();
    state = "The hot key is taken.";
    parts.notifications.post(hotKeyStateChanged);
    page->show();
    EXPECT_THAT(texts(), HasSubstr("The hot key is taken."));
}

TEST_F(SettingsPageTest, TheCaptionFollowsTheLayout) {
    EXPECT_THAT(texts(), HasSubstr("Enabled items are combined into the menu bar text."));
    button("Modular Menu Bar").click();
    EXPECT_TRUE(parts.settings.modularMenuBar());
    EXPECT_THAT(texts(), HasSubstr("Every enabled item gets its own icon — hover it to see the detail."));
    EXPECT_EQ(styleChanges, 1);
    button("Stacked Labels").click();
    EXPECT_TRUE(parts.settings.stackedModularLabels());
    EXPECT_EQ(styleChanges, 2);
}

TEST_F(SettingsPageTest, ThePickerStoresTheMenuBarStyle) {
    button("Icon").click();
    EXPECT_EQ(parts.settings.menuBarStyle(), MenuBarStyle::icon);
    button("Graph").click();
    EXPECT_EQ(parts.settings.menuBarStyle(), MenuBarStyle::graph);
    EXPECT_EQ(styleChanges, 2);
}

TEST_F(SettingsPageTest, ThePlaceOfTheItemsIsStoredWhereTheSystemHasSeveral) {
    EXPECT_EQ(control<SegmentedControl>("statusBarHost").chosen(), 0);
    button("Own Bar").click();
    EXPECT_EQ(preferenceString(parts.store, keys::statusBarHost), "bar");
    button("Desktop Tray").click();
    EXPECT_EQ(preferenceString(parts.store, keys::statusBarHost), "tray");
    button("Automatic").click();
    EXPECT_EQ(preferenceString(parts.store, keys::statusBarHost), "auto");
    context.family = SystemFamily::macOS;
    open();
    EXPECT_EQ(buttonNamed(*page, "Own Bar"), nullptr);
}

TEST_F(SettingsPageTest, TheAccentIsStoredAndTold) {
    control<AccentThemePicker>("accentTheme").circle(AccentTheme::teal)->click();
    EXPECT_EQ(parts.settings.accentTheme(), AccentTheme::teal);
    EXPECT_EQ(styleChanges, 1);
}

TEST_F(SettingsPageTest, TheIntervalIsStoredAndRestartsTheTimer) {
    EXPECT_EQ(control<SegmentedControl>("refreshInterval").chosen(), 1);
    const std::size_t timers = parts.dispatcher.activeTimers();
    button("10 s").click();
    EXPECT_EQ(parts.settings.refreshInterval(), 10);
    EXPECT_EQ(parts.dispatcher.activeTimers(), timers + 1);
    EXPECT_EQ(styleChanges, 0);
}

TEST_F(SettingsPageTest, AnIntervalBesidesTheChoicesChoosesNone) {
    parts.store.set(keys::refreshInterval, 3.5);
    open();
    EXPECT_EQ(control<SegmentedControl>("refreshInterval").chosen(), -1);
}

TEST_F(SettingsPageTest, TheTemperatureUnitIsStored) {
    button("°F").click();
    EXPECT_TRUE(parts.settings.usesFahrenheit());
    button("°C").click();
    EXPECT_FALSE(parts.settings.usesFahrenheit());
}

TEST_F(SettingsPageTest, TheThresholdsMoveByTheirSteps) {
    button("CPU above +").click();
    EXPECT_EQ(parts.settings.cpuAlertThreshold(), 95);
    button("Free space below −").click();
    EXPECT_EQ(parts.settings.diskFreeAlertGB(), 9);
    button("Battery below +").click();
    EXPECT_EQ(parts.settings.batteryAlertPercent(), 25);
    EXPECT_THAT(texts(), HasSubstr("95 %"));
    EXPECT_THAT(texts(), HasSubstr("9 GB"));
}

TEST_F(SettingsPageTest, TheSwitchesAreBound) {
    EXPECT_TRUE(button("Enable Alerts").isChecked());
    button("Enable Alerts").click();
    EXPECT_FALSE(parts.settings.notificationsEnabled());
    button("Show Wi-Fi network name").click();
    EXPECT_TRUE(parts.settings.wifiSSIDEnabled());
    button("Launch at Login").click();
    EXPECT_TRUE(parts.launchesAtLogin);
}

TEST_F(SettingsPageTest, ThePermissionForTheNetworkNameIsAskedForWhenTheNameIsTurnedOn) {
    button("Show Wi-Fi network name").click();
    EXPECT_THAT(parts.asked, ElementsAre("network name"));
    button("Show Wi-Fi network name").click();
    EXPECT_FALSE(parts.settings.wifiSSIDEnabled());
    EXPECT_THAT(parts.asked, ElementsAre("network name")) << "not when it is turned off";
}

TEST_F(SettingsPageTest, ALanguageIsShownAtOnce) {
    control<SegmentedControl>("appLanguage").segment(0)->setFocus();
    pressKey(*control<SegmentedControl>("appLanguage").segment(0), Qt::Key_Space);
    EXPECT_EQ(parts.loc.language(), AppLanguage::cs);
    EXPECT_THAT(texts(), HasSubstr("Nastavení"));
    EXPECT_THAT(texts(), HasSubstr("CO ZOBRAZIT V LIŠTĚ"));
    EXPECT_THAT(texts(), HasSubstr("Nejnáročnější procesy"));
}

TEST_F(SettingsPageTest, FollowsAChangeMadeElsewhere) {
    parts.store.set(keys::showGauges, false);
    QApplication::processEvents();
    EXPECT_FALSE(control<ModuleToggleTile>(keys::showGauges).isOn());
}

TEST_F(SettingsPageTest, SpeaksOfApplesPermissionOnlyOnAMac) {
    EXPECT_THAT(texts(), Not(HasSubstr("Apple")));
    EXPECT_THAT(texts(), HasSubstr("Backup"));
    context.family = SystemFamily::macOS;
    open();
    EXPECT_THAT(
        texts(),
        HasSubstr("Requires Location permission (Apple requires this for SSID access since macOS 14). "
                  "The app never stores or sends your location."));
    EXPECT_THAT(texts(), HasSubstr("Time Machine"));
}

TEST_F(SettingsPageTest, GoesBack) {
    button("Back").click();
    EXPECT_EQ(parts.asked, std::vector<std::string>{"back"});
}

TEST_F(SettingsPageTest, EveryControlIsReachedByKeyboardAndHasAName) {
    for (const QAbstractButton* each : page->findChildren<QAbstractButton*>()) {
        EXPECT_TRUE(each->focusPolicy() & Qt::TabFocus);
        EXPECT_FALSE(each->accessibleName().isEmpty());
    }
}

} // namespace tarvo::ui
