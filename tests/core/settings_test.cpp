#include "core/settings.h"

#include "core/shared_instance.h"
#include "support/memory_preference_store.h"

#include <gmock/gmock.h>

#include <limits>

namespace tarvo {
namespace {

struct SettingsTest : testing::Test {
    MemoryPreferenceStore store;
    Settings settings{store};
};

struct BooleanDefault {
    std::string_view key;
    bool initial;
};

constexpr BooleanDefault booleanDefaults[] = {
    {"notificationsEnabled", true}, {"modularMenuBar", false},   {"stackedModularLabels", false},
    {"menubar.cpu", true},          {"menubar.mem", true},       {"menubar.battery", false},
    {"menubar.temp", false},        {"menubar.disk", false},     {"menubar.network", false},
    {"wifiSSIDEnabled", false},     {"show.gauges", true},       {"show.history", true},
    {"show.temps", true},           {"show.power", true},        {"show.disk", true},
    {"show.network", true},         {"show.ips", false},         {"show.battery", true},
    {"show.cores", false},          {"show.processes", true},    {"show.quickActions", true},
    {"show.netProcesses", false},   {"show.timeMachine", false}, {"show.bluetoothBattery", false},
};

TEST_F(SettingsTest, AnEmptyStoreGivesEveryBooleanItsDefault) {
    for (const auto& row : booleanDefaults)
        EXPECT_EQ(settings.boolean(row.key), row.initial) << row.key;
}

TEST_F(SettingsTest, AStoredBooleanWinsOverItsDefaultEitherWay) {
    for (const auto& row : booleanDefaults) {
        store.set(row.key, !row.initial);
        EXPECT_EQ(settings.boolean(row.key), !row.initial) << row.key;
    }
}

TEST_F(SettingsTest, AnEmptyStoreGivesEveryGetterItsDefault) {
    EXPECT_EQ(settings.refreshInterval(), 2.0);
    EXPECT_TRUE(settings.notificationsEnabled());
    EXPECT_EQ(settings.cpuAlertThreshold(), 90.0);
    EXPECT_EQ(settings.diskFreeAlertGB(), 10.0);
    EXPECT_EQ(settings.batteryAlertPercent(), 20.0);
    EXPECT_FALSE(settings.usesFahrenheit());
    EXPECT_EQ(settings.menuBarStyle(), MenuBarStyle::text);
    EXPECT_FALSE(settings.modularMenuBar());
    EXPECT_FALSE(settings.stackedModularLabels());
    EXPECT_EQ(settings.accentTheme(), AccentTheme::blue);
    EXPECT_FALSE(settings.wifiSSIDEnabled());
    EXPECT_EQ(store.writes, 0);
}

TEST_F(SettingsTest, OnlyProcessorAndMemoryAreShownUntilAModuleIsChosen) {
    for (const auto module : allMenuBarModules) {
        const bool expected = module == MenuBarModule::cpu || module == MenuBarModule::mem;
        EXPECT_EQ(settings.isMenuBarModuleEnabled(module), expected) << rawValue(module);
    }
}

TEST_F(SettingsTest, AModuleFlagIsReadFromItsOwnKey) {
    store.set("menubar.cpu", false);
    store.set("menubar.temp", true);
    EXPECT_FALSE(settings.isMenuBarModuleEnabled(MenuBarModule::cpu));
    EXPECT_TRUE(settings.isMenuBarModuleEnabled(MenuBarModule::mem));
    EXPECT_TRUE(settings.isMenuBarModuleEnabled(MenuBarModule::temp));
}

TEST_F(SettingsTest, AnIntervalOrThresholdThatIsNotGreaterThanZeroReadsAsItsDefault) {
    for (const double refused : {0.0, -0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
        store.set("refreshInterval", refused);
        store.set("cpuAlertThreshold", refused);
        store.set("batteryAlertPercent", refused);
        EXPECT_EQ(settings.refreshInterval(), 2.0);
        EXPECT_EQ(settings.cpuAlertThreshold(), 90.0);
        EXPECT_EQ(settings.batteryAlertPercent(), 20.0);
    }
}

TEST_F(SettingsTest, AFreeSpaceThresholdIsReturnedAsStoredZeroIncluded) {
    store.set("diskFreeAlertGB", 0.0);
    EXPECT_EQ(settings.diskFreeAlertGB(), 0.0);
    store.set("diskFreeAlertGB", -3.0);
    EXPECT_EQ(settings.diskFreeAlertGB(), -3.0);
}

TEST_F(SettingsTest, NumbersStoredAsIntegersReadAsFloats) {
    store.set("refreshInterval", std::int64_t{5});
    store.set("cpuAlertThreshold", std::int64_t{75});
    EXPECT_EQ(settings.refreshInterval(), 5.0);
    EXPECT_EQ(settings.cpuAlertThreshold(), 75.0);
}

TEST_F(SettingsTest, TextUnderANumberReadsAsTheDefaultWhereZeroIsRefused) {
    store.set("refreshInterval", std::string("fast"));
    EXPECT_EQ(settings.refreshInterval(), 2.0);
}

TEST_F(SettingsTest, TheStyleIsOneOfThreeNumbersAndTextForAnyOther) {
    store.set("menuBarStyle", std::int64_t{1});
    EXPECT_EQ(settings.menuBarStyle(), MenuBarStyle::graph);
    store.set("menuBarStyle", std::int64_t{2});
    EXPECT_EQ(settings.menuBarStyle(), MenuBarStyle::icon);
    for (const std::int64_t other : {0, 7, -1, 3}) {
        store.set("menuBarStyle", other);
        EXPECT_EQ(settings.menuBarStyle(), MenuBarStyle::text) << other;
    }
}

TEST_F(SettingsTest, TheAccentThemeIsStoredAsItsName) {
    settings.setAccentTheme(AccentTheme::graphite);
    EXPECT_EQ(preferenceString(store, "accentTheme"), "graphite");
    EXPECT_EQ(settings.accentTheme(), AccentTheme::graphite);
}

TEST_F(SettingsTest, AnUnknownAccentThemeReadsAsBlue) {
    for (const char* unknown : {"", "Teal", "magenta", "blue "}) {
        store.set("accentTheme", std::string(unknown));
        EXPECT_EQ(settings.accentTheme(), AccentTheme::blue) << unknown;
    }
    store.set("accentTheme", true);
    EXPECT_EQ(settings.accentTheme(), AccentTheme::blue);
}

TEST_F(SettingsTest, ATemperatureIsShownInWholeDegreesOfTheChosenUnit) {
    EXPECT_EQ(settings.formatTemperature(21.6), "22 °C");
    store.set("temperatureUnit", std::int64_t{1});
    EXPECT_EQ(settings.formatTemperature(21.6), "71 °F");
    EXPECT_EQ(settings.formatTemperature(-40), "-40 °F");
}

TEST_F(SettingsTest, AnyUnitButOneMeansCelsius) {
    for (const std::int64_t unit : {0, 2, -1}) {
        store.set("temperatureUnit", unit);
        EXPECT_EQ(settings.formatTemperature(100), "100 °C") << unit;
    }
}

TEST_F(SettingsTest, HalfDegreesRoundToTheEvenNeighbour) {
    EXPECT_EQ(settings.formatTemperature(20.5), "20 °C");
    EXPECT_EQ(settings.formatTemperature(21.5), "22 °C");
    EXPECT_EQ(settings.formatTemperature(0.5), "0 °C");
}

TEST_F(SettingsTest, SectionsAreFoundByTheirOwnName) {
    EXPECT_TRUE(settings.showsSection("gauges"));
    EXPECT_FALSE(settings.showsSection("ips"));
    store.set("show.ips", true);
    EXPECT_TRUE(settings.showsSection("ips"));
    EXPECT_FALSE(settings.showsSection("unheard-of"));
}

TEST_F(SettingsTest, AKeyOutsideTheTableReadsAsFalseOrZeroUntilWritten) {
    EXPECT_FALSE(settings.boolean("x"));
    EXPECT_EQ(settings.number("x"), 0.0);
    EXPECT_EQ(settings.integer("x"), 0);
    store.set("x", std::int64_t{4});
    EXPECT_TRUE(settings.boolean("x"));
    EXPECT_EQ(settings.number("x"), 4.0);
    EXPECT_EQ(settings.integer("x"), 4);
}

TEST_F(SettingsTest, TheChosenAutomationsKeepTheirOrder) {
    EXPECT_TRUE(settings.customShortcuts().empty());
    settings.setCustomShortcuts({"b", "a", "b"});
    EXPECT_EQ(settings.customShortcuts(), (std::vector<std::string>{"b", "a", "b"}));
    EXPECT_TRUE(store.object("customShortcuts"));
    store.set("customShortcuts", std::string("not a list"));
    EXPECT_TRUE(settings.customShortcuts().empty());
}

TEST_F(SettingsTest, NothingIsCached) {
    EXPECT_EQ(settings.refreshInterval(), 2.0);
    store.set("refreshInterval", 10.0);
    EXPECT_EQ(settings.refreshInterval(), 10.0);
    store.remove("refreshInterval");
    EXPECT_EQ(settings.refreshInterval(), 2.0);
}

TEST_F(SettingsTest, TheSharedInstanceIsTheInstalledOne) {
    const SharedInstance<Settings> door(settings);
    EXPECT_EQ(&Settings::shared(), &settings);
    EXPECT_EQ(&Settings::shared().defaults(), &store);
}

} // namespace
} // namespace tarvo
