#include "ui/cards/backup_card.h"
#include "ui/cards/battery_card.h"
#include "ui/cards/bluetooth_card.h"
#include "ui/cards/cores_card.h"
#include "ui/cards/disk_card.h"
#include "ui/cards/gauges_card.h"
#include "ui/cards/net_processes_card.h"
#include "ui/cards/network_card.h"
#include "ui/cards/processes_card.h"
#include "ui/cards/sensors_card.h"
#include "ui/cards/update_banner.h"

#include "support/painted_widget.h"
#include "ui/panel_fixture.h"
#include "ui/press.h"
#include "ui/shown_texts.h"

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct CardsTest : ::testing::Test {
    template <typename CardType>
    std::string textsOf(const StatsSnapshot& snapshot) {
        context.family = family;
        CardType card(context, nullptr);
        card.show(snapshot);
        return shownTexts(card);
    }

    PanelParts parts;
    PanelContext context = parts.context();
    SystemFamily family = SystemFamily::other;
};

} // namespace

TEST_F(CardsTest, GaugesShowProcessorMemoryAndGPU) {
    EXPECT_EQ(textsOf<GaugesCard>(laptopSnapshot()),
              "CPU 23%, 64 °C\nMemory 61%, 9.8 / 16 GB\nGPU 12%, 51 °C");
}

TEST_F(CardsTest, GaugesShowUnknownTemperaturesAsUnavailable) {
    EXPECT_EQ(textsOf<GaugesCard>({}), "CPU 0%, —\nMemory 0%, 0.0 / 0 GB\nGPU 0%, —");
}

TEST_F(CardsTest, GaugesShowTheChosenTemperatureUnit) {
    parts.store.set(keys::temperatureUnit, std::int64_t{1});
    EXPECT_THAT(textsOf<GaugesCard>(laptopSnapshot()), HasSubstr("CPU 23%, 148 °F"));
}

TEST_F(CardsTest, SensorsNameEachFan) {
    const std::string texts = textsOf<SensorsCard>(laptopSnapshot());
    EXPECT_THAT(texts, HasSubstr("CPU Temperature 64 °C"));
    EXPECT_THAT(texts, HasSubstr("Fan 1 2412 RPM"));
    EXPECT_THAT(texts, HasSubstr("Fan 2 2380 RPM"));
    EXPECT_THAT(texts, HasSubstr("Power Draw 18.4 W"));
    EXPECT_THAT(texts, Not(HasSubstr("passive")));
}

TEST_F(CardsTest, SensorsSayThatAMachineWithoutFanIsPassive) {
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_THAT(textsOf<SensorsCard>({}), HasSubstr("Chlazení pasivní"));
    EXPECT_THAT(textsOf<SensorsCard>({}), HasSubstr("Teplota CPU —"));
}

TEST_F(CardsTest, SensorsLeaveThePowerOutWhenItIsNotWanted) {
    parts.store.set(keys::showPower, false);
    EXPECT_THAT(textsOf<SensorsCard>(laptopSnapshot()), Not(HasSubstr("Power Draw")));
}

TEST_F(CardsTest, SensorsFollowAChangingNumberOfFans) {
    SensorsCard card(context, nullptr);
    card.show(extremeSnapshot());
    EXPECT_THAT(shownTexts(card), HasSubstr("Fan 12 12345 RPM"));
    card.show(laptopSnapshot());
    EXPECT_THAT(shownTexts(card), Not(HasSubstr("Fan 3")));
}

TEST_F(CardsTest, DiskShowsSpaceAndTraffic) {
    EXPECT_THAT(textsOf<DiskCard>(laptopSnapshot()), HasSubstr("Disk 412 GB free of 994 GB"));
    EXPECT_THAT(textsOf<DiskCard>(laptopSnapshot()), HasSubstr("Disk I/O R 1.1 MB/s · W 332.0 KB/s"));
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_THAT(textsOf<DiskCard>(laptopSnapshot()), HasSubstr("Disk 412 GB volno z 994 GB"));
}

TEST_F(CardsTest, DiskWithoutAReadingIsUnavailable) {
    EXPECT_THAT(textsOf<DiskCard>({}), HasSubstr("Disk —"));
}

TEST_F(CardsTest, NetworkShowsRatesAndTotal) {
    const std::string texts = textsOf<NetworkCard>(laptopSnapshot());
    EXPECT_THAT(texts, HasSubstr("Download 2.3 MB/s"));
    EXPECT_THAT(texts, HasSubstr("Upload 85.9 KB/s"));
    EXPECT_THAT(texts, HasSubstr("Total Transferred 9.8 GB"));
    EXPECT_THAT(texts, Not(HasSubstr("IP")));
    EXPECT_THAT(texts, Not(HasSubstr("Wi-Fi")));
}

TEST_F(CardsTest, NetworkShowsAddressesAndWiFiNameWhenWanted) {
    parts.store.set(keys::showIPs, true);
    parts.store.set(keys::wifiSSIDEnabled, true);
    const std::string texts = textsOf<NetworkCard>(laptopSnapshot());
    EXPECT_THAT(texts, HasSubstr("Local IP 192.168.1.23"));
    EXPECT_THAT(texts, HasSubstr("Public IP 203.0.113.7"));
    EXPECT_THAT(texts, HasSubstr("Wi-Fi Network Home"));
    EXPECT_THAT(textsOf<NetworkCard>({}), HasSubstr("Public IP —"));
}

TEST_F(CardsTest, NetworkShowsTheLargestRate) {
    EXPECT_THAT(textsOf<NetworkCard>(extremeSnapshot()), HasSubstr("Download 5120.0 GB/s"));
}

TEST_F(CardsTest, NetProcessesLoadUntilTheFirstReading) {
    EXPECT_THAT(textsOf<NetProcessesCard>({}), HasSubstr("Loading…"));
    const std::string texts = textsOf<NetProcessesCard>(laptopSnapshot());
    EXPECT_THAT(texts, HasSubstr("since process launch"));
    EXPECT_THAT(texts, HasSubstr("firefox 5.0 GB"));
    EXPECT_THAT(texts, Not(HasSubstr("Loading…")));
}

TEST_F(CardsTest, BackupSpeaksOfTimeMachineOnlyWhereItIs) {
    family = SystemFamily::macOS;
    EXPECT_EQ(textsOf<BackupCard>({}), "Time Machine\nTime Machine isn't set up");
    family = SystemFamily::other;
    EXPECT_EQ(textsOf<BackupCard>({}), "Backup\nNo backup is set up");
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(textsOf<BackupCard>({}), "Zálohování\nZálohování není nastaveno");
}

TEST_F(CardsTest, BackupShowsItsProgress) {
    StatsSnapshot snapshot;
    snapshot.timeMachine = TimeMachineInfo{true, 42.4, std::nullopt};
    EXPECT_EQ(textsOf<BackupCard>(snapshot), "Backup backing up… 42%\nNo backup yet");
    snapshot.timeMachine = TimeMachineInfo{true, std::nullopt, std::nullopt};
    EXPECT_THAT(textsOf<BackupCard>(snapshot), HasSubstr("backing up…\n"));
    snapshot.timeMachine =
        TimeMachineInfo{false, std::nullopt, WallTime{std::chrono::seconds{1'763'200'000}}};
    EXPECT_THAT(textsOf<BackupCard>(snapshot), HasSubstr("Last Backup "));
}

TEST_F(CardsTest, BatteryShowsLevelStateTimeAndWear) {
    const std::string texts = textsOf<BatteryCard>(laptopSnapshot());
    EXPECT_EQ(texts, "Battery 68%\n68%\non battery\n2:15 remaining\ncycles: 312 · health: 91%");
    parts.loc.setLanguage(AppLanguage::cs);
    EXPECT_EQ(textsOf<BatteryCard>(laptopSnapshot()),
              "Baterie 68%\n68%\nna baterii\nzbývá 2:15\ncyklů: 312 · zdraví: 91%");
}

TEST_F(CardsTest, BluetoothWithoutAccessoriesIsUnavailable) {
    EXPECT_EQ(textsOf<BluetoothCard>({}), "Bluetooth Accessories\n—");
}

TEST_F(CardsTest, CoresShowOneBarEach) {
    EXPECT_EQ(textsOf<CoresCard>(laptopSnapshot()), "CPU Cores\n12%, 61%, 8%, 87%, 33%, 5%, 20%, 44%");
    CoresCard card(context, nullptr);
    card.show(extremeSnapshot());
    EXPECT_FALSE(isBlank(painted(card, {336, card.sizeHint().height()})));
}

TEST_F(CardsTest, ProcessesAreLoadingUntilTheFirstReading) {
    EXPECT_EQ(textsOf<ProcessesCard>({}), "Top Processes\nLoading…");
    EXPECT_THAT(textsOf<ProcessesCard>(laptopSnapshot()), HasSubstr("gnome-shell 12.5 %"));
}

TEST_F(CardsTest, AProcessIsAskedToQuitByItsOwnButton) {
    ProcessesCard card(context, nullptr);
    card.show(laptopSnapshot());
    const auto buttons = card.findChildren<QAbstractButton*>();
    ASSERT_EQ(buttons.size(), 3);
    EXPECT_EQ(buttons[1]->toolTip(), "Quit Process");
    buttons[1]->click();
    EXPECT_EQ(parts.asked, std::vector<std::string>{"kill 77"});
}

TEST_F(CardsTest, TheBannerOpensTheUpdatesAddress) {
    parts.update.set(UpdateInfo{"2.1", "https://example.org/tarvo", std::nullopt});
    UpdateBanner banner(context, nullptr);
    banner.show(StatsSnapshot{});
    EXPECT_EQ(shownTexts(banner), "New version 2.1\nA newer version is available to download.\nDownload");
    buttonNamed(banner, "Download")->click();
    EXPECT_EQ(parts.asked, std::vector<std::string>{"open https://example.org/tarvo"});
}

TEST_F(CardsTest, ShowingTheSameAgainRepaintsNothing) {
    ProcessesCard card(context, nullptr);
    card.QWidget::show();
    card.show(laptopSnapshot());
    QApplication::processEvents();
    const PaintCounter counter(card);
    card.show(laptopSnapshot());
    QApplication::processEvents();
    EXPECT_EQ(counter.count(), 0);
}

} // namespace tarvo::ui
