#include "support/painted_widget.h"
#include "ui/detail_fixture.h"
#include "ui/press.h"
#include "ui/sections/battery_section.h"
#include "ui/sections/bluetooth_section.h"
#include "ui/sections/core_rings.h"
#include "ui/sections/cpu_section.h"
#include "ui/sections/disk_section.h"
#include "ui/sections/history_section.h"
#include "ui/sections/memory_section.h"
#include "ui/sections/sensors_section.h"
#include "ui/shown_texts.h"

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct SectionsTest : ::testing::Test {
    SectionsTest() {
        StatsSnapshot snapshot = laptopSnapshot();
        snapshot.loadAvg1 = 1.5;
        snapshot.loadAvg5 = 0.756;
        snapshot.loadAvg15 = 0;
        snapshot.memWiredGB = 2.1;
        snapshot.memActiveGB = 5.25;
        snapshot.memCompressedGB = 0.4;
        snapshot.memInactiveGB = 3;
        snapshot.memFreeGB = 1.06;
        snapshot.swapUsedGB = 0.5;
        snapshot.swapTotalGB = 4;
        parts.publish(snapshot);
    }

    template <typename SectionType>
    std::unique_ptr<SectionType> open() {
        auto section = std::make_unique<SectionType>(context, nullptr);
        section->resize(760, 600);
        section->show();
        return section;
    }
    void settle() {
        parts.dispatcher.runAll();
        QApplication::processEvents();
    }
    template <typename SectionType>
    std::string loadedTexts() {
        const auto section = open<SectionType>();
        settle();
        return shownTexts(*section);
    }
    void setCzech() {
        parts.loc.setLanguage(AppLanguage::cs);
        QApplication::processEvents();
    }

    DetailParts parts;
    DetailContext context = parts.detail();
};

} // namespace

TEST_F(SectionsTest, ProcessorHasTotalLoadAndCores) {
    const auto section = open<CPUSection>();
    const std::string texts = shownTexts(*section);
    EXPECT_THAT(texts, HasSubstr("CPU\n\n23 %"));
    EXPECT_THAT(texts, HasSubstr("Load Average\n1 min 1.50\n5 min 0.76\n15 min 0.00"));
    EXPECT_THAT(texts, HasSubstr("Per-Core Usage\nCore 1 12%, Core 2 61%, Core 3 8%, Core 4 87%"));
    setCzech();
    const std::string czech = shownTexts(*section);
    EXPECT_THAT(czech, HasSubstr("Průměrné zatížení"));
    EXPECT_THAT(czech, HasSubstr("Vytížení po jádrech"));
}

TEST_F(SectionsTest, CoresAreOrangeFrom60AndRedFrom85) {
    const auto color = [](double load) {
        CoreRings rings;
        rings.set({{load}});
        const QImage image = painted(rings, QSize(68, 74), 1, Qt::white);
        return image.pixelColor(34, 3); // the beginning of the arc, at the top
    };
    EXPECT_EQ(color(59.9), color(30));
    EXPECT_NE(color(60), color(59.9));
    EXPECT_EQ(color(60), color(84.9));
    EXPECT_NE(color(85), color(84.9));
    EXPECT_EQ(color(85), color(100));
}

TEST_F(SectionsTest, CoresFillTheWidth) {
    CoreRings rings;
    rings.set({std::vector<double>(64, 10)});
    EXPECT_LT(rings.heightForWidth(1200), rings.heightForWidth(500));
    EXPECT_GE(rings.heightForWidth(10), 64 * 54);
    rings.set({});
    EXPECT_EQ(rings.heightForWidth(500), 0);
}

TEST_F(SectionsTest, MemoryHasItsBreakdownAndSwap) {
    const auto section = open<MemorySection>();
    const std::string texts = shownTexts(*section);
    EXPECT_THAT(texts, HasSubstr("Memory\n\n9.8 / 16 GB"));
    EXPECT_THAT(texts, HasSubstr("Memory Breakdown\nWired 2.1 GB\nActive 5.2 GB\nCompressed 0.4 GB\n"
                                 "Inactive 3.0 GB\nFree 1.1 GB\nSwap 0.5 / 4.0 GB"));
    setCzech();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Rozpad paměti\nWired 2.1 GB\nAktivní 5.2 GB\n"
                                                "Komprimovaná 0.4 GB\nNeaktivní 3.0 GB\nVolná 1.1 GB"));
}

TEST_F(SectionsTest, DisksListTheVolumesAndReListThemOnRefresh) {
    const auto section = open<DiskSection>();
    EXPECT_TRUE(section->isLoading());
    settle();
    const std::string texts = shownTexts(*section);
    EXPECT_THAT(texts, HasSubstr("Disks\n"));
    EXPECT_THAT(texts, HasSubstr("Disk I/O\nRead 1.1 MB/s\nWrite 332.0 KB/s"));
    EXPECT_THAT(texts, HasSubstr("Volumes\nSystem 582 / 994 GB\nStick 29 / 32 GB"));
    parts.volumes.pop_back();
    buttonNamed(*section, "Refresh")->click();
    EXPECT_FALSE(buttonNamed(*section, "Refresh")->isEnabled());
    settle();
    EXPECT_TRUE(buttonNamed(*section, "Refresh")->isEnabled());
    EXPECT_EQ(section->volumes().size(), 1U);
    EXPECT_THAT(shownTexts(*section), Not(HasSubstr("Stick")));
}

TEST_F(SectionsTest, BluetoothTellsEachDevicesState) {
    EXPECT_THAT(loadedTexts<BluetoothSection>(),
                HasSubstr("Paired Devices\nMouse Connected\nHeadset Not Connected"));
}

TEST_F(SectionsTest, BluetoothWithoutDevicesSaysSo) {
    parts.devices.clear();
    const auto section = open<BluetoothSection>();
    EXPECT_THAT(shownTexts(*section), Not(HasSubstr("No paired devices"))); // not known yet
    settle();
    EXPECT_THAT(shownTexts(*section), HasSubstr("No paired devices"));
    setCzech();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Žádná spárovaná zařízení"));
}

TEST_F(SectionsTest, BluetoothOfAMachineThatCannotListSaysThatThereIsNone) {
    context.bluetoothDevices = {};
    EXPECT_THAT(loadedTexts<BluetoothSection>(), HasSubstr("No paired devices"));
}

TEST_F(SectionsTest, BatteryHasStateTimeAndHealth) {
    const auto section = open<BatterySection>();
    const std::string texts = shownTexts(*section);
    EXPECT_THAT(texts, HasSubstr("on battery 68%"));
    EXPECT_THAT(texts, HasSubstr("Time & Health\nRemaining 2:15\nCycle Count 312\nBattery health 91%\n"
                                 "Power Draw 18.4 W"));
    StatsSnapshot snapshot = laptopSnapshot();
    snapshot.battery = BatteryInfo{80, true, true, false, std::nullopt, 45, std::nullopt, std::nullopt};
    parts.publish(snapshot);
    QApplication::processEvents();
    EXPECT_THAT(shownTexts(*section), HasSubstr("charging 80%"));
    EXPECT_THAT(shownTexts(*section), HasSubstr("To full 45 min\nCycle Count —\nBattery health —"));
    snapshot.battery->isCharging = false;
    parts.publish(snapshot);
    QApplication::processEvents();
    EXPECT_THAT(shownTexts(*section), HasSubstr("plugged in 80%"));
    setCzech();
    EXPECT_THAT(shownTexts(*section), HasSubstr("napájení 80%"));
    EXPECT_THAT(shownTexts(*section), HasSubstr("Čas a zdraví\nZbývá —\nPočet cyklů —\nZdraví baterie —"));
}

TEST_F(SectionsTest, BatterylessMachineSaysSo) {
    parts.publish(StatsSnapshot{});
    const auto section = open<BatterySection>();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Battery not available"));
    EXPECT_THAT(shownTexts(*section), Not(HasSubstr("Time & Health")));
    setCzech();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Baterie není dostupná"));
}

TEST_F(SectionsTest, BatteryRanksTheDemandingApps) {
    const std::string texts = loadedTexts<BatterySection>();
    EXPECT_THAT(texts, HasSubstr("Most Demanding Apps (this session)"));
    EXPECT_THAT(texts, HasSubstr("Firefox 61.5%\nclangd 8.2%"));
    EXPECT_THAT(texts, Not(HasSubstr("Still collecting")));
    EXPECT_THAT(texts, Not(HasSubstr("macOS")));
}

TEST_F(SectionsTest, BatteryWaitsForTheDemandingApps) {
    parts.demanding.clear();
    const auto section = open<BatterySection>();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Still collecting data (once a minute)…"));
    setCzech();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Zatím se sbírají data (jednou za minutu)…"));
}

TEST_F(SectionsTest, NamesTheSystemOnlyWhereTheSentenceIsTrue) {
    context.panel.family = SystemFamily::macOS;
    EXPECT_THAT(
        loadedTexts<BatterySection>(),
        HasSubstr("Estimated from average CPU usage over time — macOS doesn't expose true energy impact "
                  "without system privileges."));
}

TEST_F(SectionsTest, SensorsAreCountedAndGrouped) {
    const auto section = open<SensorsSection>();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Sensors found Loading…"));
    settle();
    const std::string texts = shownTexts(*section);
    EXPECT_THAT(texts, HasSubstr("Sensors found 5"));
    for (const char* title : {"Performance Cores", "Efficiency Cores", "GPU", "Other Sensors"})
        EXPECT_THAT(texts, HasSubstr(title));
    EXPECT_THAT(texts, HasSubstr("Power Draw 18.4 W"));
    EXPECT_THAT(texts, HasSubstr("Fan 1 2412 RPM\nFan 2 2380 RPM"));
    setCzech();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Nalezené senzory 5"));
    EXPECT_THAT(shownTexts(*section), HasSubstr("Ventilátor 1 2412 RPM"));
}

TEST_F(SectionsTest, SensorsBearTheSystemsNames) {
    context.sensorName = [](std::string_view key) -> std::optional<SensorName> {
        if (key == "Tp01") return SensorName{"coretemp", "Core 0"};
        if (key == "Tg01") return SensorName{"amdgpu", ""};
        return std::nullopt;
    };
    const std::string texts = loadedTexts<SensorsSection>();
    EXPECT_THAT(texts, HasSubstr("Core 0 · coretemp"));
    EXPECT_THAT(texts, HasSubstr("amdgpu"));
    EXPECT_THAT(texts, HasSubstr("Ta0P"));
}

TEST_F(SectionsTest, SensorsOfAMachineWithNoneAreNone) {
    parts.sensors.clear();
    parts.publish(StatsSnapshot{});
    const std::string texts = loadedTexts<SensorsSection>();
    EXPECT_THAT(texts, HasSubstr("Sensors found 0"));
    EXPECT_THAT(texts, HasSubstr("Power Draw —"));
    EXPECT_THAT(texts, Not(HasSubstr("Other Sensors")));
    EXPECT_THAT(texts, Not(HasSubstr("RPM")));
}

TEST_F(SectionsTest, SensorsFollowTheUnitOfTemperature) {
    const auto section = open<SensorsSection>();
    settle();
    EXPECT_THAT(shownTexts(*section), HasSubstr("64 °C"));
    parts.store.set(keys::temperatureUnit, std::int64_t{1});
    QApplication::processEvents();
    EXPECT_THAT(shownTexts(*section), HasSubstr("147 °F"));
    EXPECT_THAT(shownTexts(*section), Not(HasSubstr("°C")));
}

TEST_F(SectionsTest, HistoryShowsTheAlerts) {
    const auto section = open<HistorySection>();
    EXPECT_THAT(shownTexts(*section), HasSubstr("No alerts yet"));
    setCzech();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Zatím žádná upozornění"));
    parts.alerts = {{
                        {},
                        WallTime{},
                        "High CPU load",
                        "CPU is at 97%",
                    },
                    {{}, WallTime{}, "Low disk space", "4 GB left"}};
    parts.publish(laptopSnapshot());
    QApplication::processEvents();
    const std::string texts = shownTexts(*section);
    EXPECT_THAT(texts, Not(HasSubstr("Zatím žádná")));
    EXPECT_LT(texts.find("High CPU load, CPU is at 97%"), texts.find("Low disk space"));
}

TEST_F(SectionsTest, AHiddenSectionDoesNothing) {
    const auto section = open<CPUSection>();
    section->hide();
    StatsSnapshot snapshot = laptopSnapshot();
    snapshot.cpu = 77;
    parts.publish(snapshot);
    QApplication::processEvents();
    EXPECT_THAT(shownTexts(*section), HasSubstr("23 %"));
    section->show();
    EXPECT_THAT(shownTexts(*section), HasSubstr("77 %"));
}

TEST_F(SectionsTest, SwitchingTheLanguageWhileItLoadsLosesNothing) {
    const auto section = open<DiskSection>();
    parts.loc.setLanguage(AppLanguage::cs);
    settle();
    EXPECT_THAT(shownTexts(*section), HasSubstr("Svazky\nSystem 582 / 994 GB"));
}

TEST_F(SectionsTest, LeavingWhileItLoadsLosesNothing) {
    const auto section = open<DiskSection>();
    section->hide();
    settle();
    EXPECT_EQ(section->volumes().size(), 2U);
    EXPECT_FALSE(section->isLoading());
    section->show();
    EXPECT_THAT(shownTexts(*section), HasSubstr("System 582 / 994 GB"));
}

TEST_F(SectionsTest, ClosingWhileItLoadsPublishesNothing) {
    open<DiskSection>();
    open<SensorsSection>();
    open<BluetoothSection>();
    settle(); // nothing to crash into
    EXPECT_EQ(parts.loads, 3);
}

TEST_F(SectionsTest, ExtremeReadingsFitIntoTheNarrowestWindow) {
    parts.publish(extremeSnapshot());
    for (auto& device : parts.devices)
        device.name = std::string(300, 'W');
    const auto check = [this](auto section) {
        section->resize(560, 480);
        section->show();
        settle();
        EXPECT_LE(section->minimumSizeHint().width(), 560);
        EXPECT_FALSE(isBlank(painted(*section, QSize(560, 480))));
    };
    check(open<CPUSection>());
    check(open<MemorySection>());
    check(open<DiskSection>());
    check(open<BatterySection>());
    check(open<BluetoothSection>());
    check(open<SensorsSection>());
}

} // namespace tarvo::ui
