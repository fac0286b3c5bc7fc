#include "menubar/status_text.h"

#include "support/memory_preference_store.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <locale>

namespace tarvo {
namespace {

class StatusText : public testing::Test {
protected:
    StatusText() {
        snapshot.cpu = 23.4;
        snapshot.memPercent = 47.6;
    }

    std::string combined() {
        std::string text = "left from before";
        writeCombinedText(text, snapshot, settings);
        return text;
    }
    std::string toolTip(AppLanguage language = AppLanguage::en) {
        std::string text = "left from before";
        writeCombinedToolTip(text, snapshot, settings, language);
        return text;
    }
    void enable(std::initializer_list<MenuBarModule> modules) {
        for (const auto module : allMenuBarModules) {
            const bool wanted = std::find(modules.begin(), modules.end(), module) != modules.end();
            store.set("menubar." + std::string(rawValue(module)), wanted);
        }
    }
    void enableAll() {
        for (const auto module : allMenuBarModules)
            store.set("menubar." + std::string(rawValue(module)), true);
    }
    void setBattery(std::int64_t percentage, bool pluggedIn) {
        snapshot.battery = BatteryInfo{};
        snapshot.battery->percentage = percentage;
        snapshot.battery->isPluggedIn = pluggedIn;
    }

    MemoryPreferenceStore store;
    Settings settings{store};
    StatsSnapshot snapshot;
};

TEST_F(StatusText, ShowsProcessorAndMemoryOnAFreshInstallation) {
    EXPECT_EQ(combined(), "CPU 23% · RAM 48%");
}

TEST_F(StatusText, ShowsAllModulesInOrder) {
    enableAll();
    setBattery(85, true);
    snapshot.cpuTemp = 61.2;
    snapshot.diskFreeGB = 411.7;
    snapshot.netInRate = 1536;
    EXPECT_EQ(combined(), "CPU 23% · RAM 48% · 🔋85% · 61 °C · Disk 412GB · ↓1.5 KB/s");
}

TEST_F(StatusText, LeavesOutModulesWithoutAValue) {
    enableAll();
    EXPECT_EQ(combined(), "CPU 23% · RAM 48% · ↓0.0 B/s");
}

TEST_F(StatusText, IsTheNameOfTheProgramWithoutAnyModule) {
    enable({});
    EXPECT_EQ(combined(), "Tarvo");
    EXPECT_EQ(toolTip(), "Tarvo");
}

TEST_F(StatusText, IsTheNameOfTheProgramWhenNoEnabledModuleHasAValue) {
    enable({MenuBarModule::battery, MenuBarModule::temp, MenuBarModule::disk});
    EXPECT_EQ(combined(), "Tarvo");
}

TEST_F(StatusText, ShowsTheEmptySnapshot) {
    snapshot = {};
    EXPECT_EQ(combined(), "CPU 0% · RAM 0%");
}

TEST_F(StatusText, RoundsToTheNearestAndWritesNoThousandsSeparators) {
    enable({MenuBarModule::cpu, MenuBarModule::disk});
    snapshot.cpu = 99.5;
    snapshot.diskFreeGB = 1234567.4;
    EXPECT_EQ(combined(), "CPU 100% · Disk 1234567GB");
}

TEST_F(StatusText, WritesTheTemperatureInTheChosenUnit) {
    enable({MenuBarModule::temp});
    snapshot.cpuTemp = 80;
    store.set("temperatureUnit", std::int64_t{1});
    EXPECT_EQ(combined(), "176 °F");
    EXPECT_EQ(moduleValue(MenuBarModule::temp, snapshot, settings), "176 °F");
}

TEST_F(StatusText, IsTheSameInEveryLanguage) {
    enable({MenuBarModule::mem});
    store.set("appLanguage", std::string("cs"));
    EXPECT_EQ(combined(), "RAM 48%");
}

struct CommaPunctuation : std::numpunct<char> {
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

TEST_F(StatusText, IsTheSameInALocaleWithAnotherDecimalPoint) {
    enableAll();
    snapshot.diskFreeGB = 12345;
    snapshot.netInRate = 1536;
    const auto before = combined();
    const std::locale previous =
        std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    const auto during = combined();
    std::locale::global(previous);
    EXPECT_EQ(during, before);
    EXPECT_THAT(during, testing::HasSubstr("Disk 12345GB · ↓1.5 KB/s"));
}

TEST_F(StatusText, BandsTheLoadByTheLargerOfProcessorAndMemory) {
    const auto tint = [&](double cpu, double mem) {
        snapshot.cpu = cpu;
        snapshot.memPercent = mem;
        return iconTint(snapshot);
    };
    EXPECT_EQ(tint(59.9, 40), SystemColor::green);
    EXPECT_EQ(tint(20, 60), SystemColor::orange);
    EXPECT_EQ(tint(84.9, 3), SystemColor::orange);
    EXPECT_EQ(tint(20, 85.0), SystemColor::red);
    EXPECT_EQ(tint(100, 0), SystemColor::red);
    EXPECT_EQ(loadBand(snapshot), LoadBand::high);
}

TEST_F(StatusText, GivesEachModuleItsValue) {
    setBattery(85, false);
    snapshot.cpuTemp = 61.2;
    snapshot.diskFreeGB = 411.7;
    snapshot.netInRate = 1536;
    std::vector<std::string> values;
    for (const auto module : allMenuBarModules)
        values.push_back(moduleValue(module, snapshot, settings).value());
    EXPECT_THAT(values, testing::ElementsAre("23%", "48%", "85%", "61 °C", "412GB", "1.5 KB/s"));
}

TEST_F(StatusText, GivesNoValueThatTheSnapshotDoesNotKnow) {
    for (const auto module : {MenuBarModule::battery, MenuBarModule::temp, MenuBarModule::disk}) {
        EXPECT_EQ(moduleValue(module, snapshot, settings), std::nullopt);
        EXPECT_EQ(moduleTint(module, snapshot), std::nullopt);
    }
}

TEST_F(StatusText, TintsABatteryThatRunsLowUnlessPluggedIn) {
    const auto tint = [&](std::int64_t percentage, bool pluggedIn) {
        setBattery(percentage, pluggedIn);
        return moduleTint(MenuBarModule::battery, snapshot);
    };
    EXPECT_EQ(tint(19, false), SystemColor::red);
    EXPECT_EQ(tint(20, false), std::nullopt);
    EXPECT_EQ(tint(5, true), std::nullopt);
    snapshot.battery->isCharging = false;
    snapshot.battery->percentage = 10;
    EXPECT_EQ(moduleTint(MenuBarModule::battery, snapshot), std::nullopt);
}

TEST_F(StatusText, TintsATemperatureFromEightyDegreesCelsiusOnInEitherUnit) {
    store.set("temperatureUnit", std::int64_t{1});
    snapshot.cpuTemp = 80.0;
    EXPECT_EQ(moduleTint(MenuBarModule::temp, snapshot), SystemColor::red);
    snapshot.cpuTemp = 79.9;
    EXPECT_EQ(moduleTint(MenuBarModule::temp, snapshot), std::nullopt);
}

TEST_F(StatusText, TintsNoOtherModule) {
    snapshot.cpu = snapshot.memPercent = 100;
    snapshot.cpuTemp = 99;
    setBattery(1, false);
    for (const auto module :
         {MenuBarModule::cpu, MenuBarModule::mem, MenuBarModule::disk, MenuBarModule::network}) {
        EXPECT_EQ(moduleTint(module, snapshot), std::nullopt);
    }
}

TEST_F(StatusText, StacksTheLabelInCapitalsOverTheValue) {
    const auto title = stackedTitle("Paměť", "48%", std::nullopt);
    ASSERT_EQ(title.runs.size(), 2u);
    EXPECT_EQ(title.runs[0].text, "PAMĚŤ\n");
    EXPECT_EQ(title.runs[0].font, (TextFont{8, FontWeight::medium, false}));
    EXPECT_EQ(title.runs[0].color, SystemColor::secondaryLabel);
    EXPECT_EQ(title.runs[1].text, "48%");
    EXPECT_EQ(title.runs[1].font, (TextFont{10, FontWeight::semibold, true}));
    EXPECT_EQ(title.runs[1].color, SystemColor::label);
    EXPECT_TRUE(title.centred);
    EXPECT_EQ(title.maximumLineHeight, 9);
}

TEST_F(StatusText, StacksATintedValueInItsTintOnly) {
    const auto title = stackedTitle("Battery", "9%", SystemColor::red);
    EXPECT_EQ(title.runs[0].color, SystemColor::secondaryLabel);
    EXPECT_EQ(title.runs[1].color, SystemColor::red);
}

TEST_F(StatusText, TellsTheSameFactsInTheToolTip) {
    enable({MenuBarModule::mem, MenuBarModule::temp, MenuBarModule::network});
    snapshot.cpuTemp = 61.2;
    snapshot.netInRate = 1536;
    EXPECT_EQ(toolTip(), "Memory: 48%\nTemperature: 61 °C\nNetwork: 1.5 KB/s");
    EXPECT_EQ(toolTip(AppLanguage::cs), "Paměť: 48%\nTeplota: 61 °C\nSíť: 1.5 KB/s");
    EXPECT_EQ(moduleToolTip(MenuBarModule::mem, "48%", AppLanguage::cs), "Paměť: 48%");
}

TEST_F(StatusText, TellsWhatTheGraphAndTheIconAreDrawnFrom) {
    enable({MenuBarModule::network});
    for (const std::int64_t style : {1, 2}) {
        store.set("menuBarStyle", style);
        EXPECT_EQ(toolTip(), "CPU: 23%\nMemory: 48%\nNetwork: 0.0 B/s");
    }
    store.set("menuBarStyle", std::int64_t{7});
    EXPECT_EQ(toolTip(), "Network: 0.0 B/s");
}

} // namespace
} // namespace tarvo
