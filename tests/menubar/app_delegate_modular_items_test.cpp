#include "menubar/app_delegate_fixture.h"

#include <gmock/gmock.h>

namespace tarvo {
namespace {

using testing::ElementsAre;

class ModularItems : public AppDelegateTest {
protected:
    ModularItems() { useModularLayout(); }

    void enableAll() {
        for (const auto module : allMenuBarModules)
            set("menubar." + std::string(rawValue(module)), true);
    }
    void setBattery(std::int64_t percentage) {
        machine.battery = BatteryInfo{};
        machine.battery->percentage = percentage;
    }
    std::vector<std::string> titles() {
        std::vector<std::string> result;
        for (std::size_t i = 0; i < bar.size(); ++i)
            result.push_back(bar.button(i).title);
        return result;
    }
    /// Opens and closes the popover so that the sensors are read once.
    void readSensors() {
        model->setDetailVisible(true);
        tick();
        tick();
        model->setDetailVisible(false);
    }
};

TEST_F(ModularItems, AreProcessorAndMemoryOnAFreshInstallation) {
    launch();
    EXPECT_THAT(bar.symbols(), ElementsAre("cpu.fill", "memorychip.fill"));
    EXPECT_THAT(titles(), ElementsAre("12%", "48%"));
    EXPECT_EQ(bar.button(1).symbol()->accessibilityDescription, "Memory");
    EXPECT_TRUE(bar.button(1).symbol()->isTemplate);
    EXPECT_EQ(bar.button(1).font, (TextFont{12, FontWeight::regular, true}));
    EXPECT_EQ(bar.button(1).toolTip, "Memory: 48%");
}

TEST_F(ModularItems, StandInModuleOrderAndOnlyWhereTheirValueIsKnown) {
    enableAll();
    launch();
    EXPECT_THAT(bar.symbols(), ElementsAre("cpu.fill", "memorychip.fill", "internaldrive.fill", "network"));
    EXPECT_THAT(titles(), ElementsAre("12%", "48%", "\u2026", "0.0 B/s")) << "no disk figure yet";
}

TEST_F(ModularItems, AreRebuiltOnceTheBatteryIsKnown) {
    enableAll();
    launch();
    const int before = bar.made;
    setBattery(85);
    machine.disk = DiskSpace{411.7, 500};
    tick(std::chrono::seconds(10));
    EXPECT_THAT(titles(), ElementsAre("12%", "48%", "85%", "412GB", "0.0 B/s"));
    EXPECT_EQ(bar.made, before + 5) << "one rebuild";
    tick(std::chrono::minutes(1));
    EXPECT_EQ(bar.made, before + 5);
}

TEST_F(ModularItems, AreNotRebuiltForABatteryThatTheMachineDoesNotHave) {
    set("menubar.battery", true);
    launch();
    tick(std::chrono::minutes(1));
    EXPECT_EQ(bar.made, 2);
    EXPECT_THAT(bar.symbols(), ElementsAre("cpu.fill", "memorychip.fill"));
}

TEST_F(ModularItems, KeepTheLastTextOfATemperatureThatDisappeared) {
    set("menubar.temp", true);
    machine.sensors.cpuTempCelsius = 61.2;
    launch();
    EXPECT_EQ(bar.size(), 2u);
    readSensors();
    EXPECT_THAT(titles(), ElementsAre("12%", "48%", "61 °C"));
    machine.sensors.cpuTempCelsius = std::nullopt;
    readSensors();
    EXPECT_EQ(model->snap().cpuTemp, std::nullopt);
    EXPECT_THAT(titles(), ElementsAre("12%", "48%", "61 °C"));
    announceStyleChange();
    EXPECT_THAT(titles(), ElementsAre("12%", "48%")) << "removed by the next rebuild";
}

TEST_F(ModularItems, AppearOnTheNextTickWhenAModuleIsEnabledWithoutNotice) {
    launch();
    set("menubar.network", true);
    tick();
    EXPECT_THAT(bar.symbols(), ElementsAre("cpu.fill", "memorychip.fill", "network"));
}

TEST_F(ModularItems, StayUntilTheNextRebuildWhenAModuleIsDisabled) {
    launch();
    set("menubar.cpu", false);
    machine.cpu.total = 50;
    tick();
    EXPECT_THAT(titles(), ElementsAre("50%", "48%"));
    announceStyleChange();
    EXPECT_THAT(titles(), ElementsAre("48%"));
}

TEST_F(ModularItems, MayBeNone) {
    set("menubar.cpu", false);
    set("menubar.mem", false);
    launch();
    tick();
    EXPECT_EQ(bar.size(), 0u);
    EXPECT_EQ(bar.made, 0);
}

TEST_F(ModularItems, TintABatteryThatRunsLow) {
    set("menubar.battery", true);
    setBattery(19);
    launch();
    EXPECT_EQ(bar.button(2).title, "19%");
    EXPECT_EQ(bar.button(2).tint, SystemColor::red);
    EXPECT_EQ(bar.button(0).tint, std::nullopt);
    setBattery(20);
    tick(std::chrono::seconds(10));
    EXPECT_EQ(bar.button(2).tint, std::nullopt);
}

TEST_F(ModularItems, StackTheLabelOverTheValueWhenAsked) {
    set("stackedModularLabels", true);
    localization.setLanguage(AppLanguage::cs);
    launch();
    const auto& title = bar.button(1).attributedTitle;
    ASSERT_TRUE(title);
    EXPECT_EQ(title->runs[0].text, "PAMĚŤ\n");
    EXPECT_EQ(title->runs[1].text, "48%");
    EXPECT_EQ(bar.button(1).toolTip, "Paměť: 48%");
    EXPECT_EQ(bar.button(1).symbol()->accessibilityDescription, "Paměť");
}

TEST_F(ModularItems, GoBackToPlainTitles) {
    set("stackedModularLabels", true);
    launch();
    set("stackedModularLabels", false);
    tick();
    EXPECT_EQ(bar.button(1).attributedTitle, std::nullopt);
    EXPECT_EQ(bar.button(1).title, "48%");
}

TEST_F(ModularItems, ChangeNothingWhileTheReadingsStay) {
    set("stackedModularLabels", true);
    launch();
    const int before = bar.button(0).changes + bar.button(1).changes;
    tick(std::chrono::minutes(10));
    EXPECT_EQ(bar.button(0).changes + bar.button(1).changes, before);
}

TEST_F(ModularItems, FollowALanguageThatIsChangedBetweenTicks) {
    set("stackedModularLabels", true);
    launch();
    localization.setLanguage(AppLanguage::cs);
    tick();
    EXPECT_EQ(bar.button(1).attributedTitle->runs[0].text, "PAMĚŤ\n");
}

TEST_F(ModularItems, GiveWayToTheCombinedItemAndComeBack) {
    launch();
    set("modularMenuBar", false);
    announceStyleChange();
    ASSERT_EQ(bar.size(), 1u);
    EXPECT_EQ(bar.button(0).title, "CPU 12% · RAM 48%");
    set("modularMenuBar", true);
    announceStyleChange();
    EXPECT_THAT(bar.symbols(), ElementsAre("cpu.fill", "memorychip.fill"));
}

TEST_F(ModularItems, AreSkippedWithoutAButton) {
    bar.takesButtonsAway = true;
    launch();
    tick();
    EXPECT_EQ(bar.size(), 2u);
    EXPECT_EQ(bar.made, 2);
}

} // namespace
} // namespace tarvo
