#include "ui/sections/module_detail_view.h"

#include "support/painted_widget.h"
#include "ui/panel_fixture.h"
#include "ui/shown_texts.h"

#include <QApplication>

#include <gmock/gmock.h>

namespace tarvo::ui {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

struct ModuleDetailViewTest : ::testing::Test {
    ModuleDetailViewTest() { parts.publish(laptopSnapshot()); }

    std::string texts(MenuBarModule module) { return shownTexts(ModuleDetailView(module, parts.context())); }
    std::string czech(MenuBarModule module) {
        parts.loc.setLanguage(AppLanguage::cs);
        return texts(module);
    }

    PanelParts parts;
};

} // namespace

TEST_F(ModuleDetailViewTest, ProcessorShowsTotalAndCores) {
    EXPECT_EQ(texts(MenuBarModule::cpu),
              "CPU\nTotal 23 %\nCore 1 12%, Core 2 61%, Core 3 8%, Core 4 87%, Core 5 33%, Core 6 5%, "
              "Core 7 20%, Core 8 44%\nOpen the panel for a per-core breakdown");
    EXPECT_THAT(czech(MenuBarModule::cpu), HasSubstr("Celkem 23 %"));
    EXPECT_THAT(czech(MenuBarModule::cpu), HasSubstr("Otevři panel pro rozpad po jádrech"));
}

TEST_F(ModuleDetailViewTest, MemoryShowsItsShare) {
    EXPECT_THAT(texts(MenuBarModule::mem), HasSubstr("Memory\n61% used\n"));
    EXPECT_THAT(texts(MenuBarModule::mem), HasSubstr("Used 9.8 / 16 GB"));
    EXPECT_THAT(czech(MenuBarModule::mem), HasSubstr("Paměť\n61 % obsazeno\n"));
    EXPECT_THAT(czech(MenuBarModule::mem), HasSubstr("Využito 9.8 / 16 GB"));
}

TEST_F(ModuleDetailViewTest, BatteryShowsStateTimeAndWear) {
    EXPECT_THAT(texts(MenuBarModule::battery),
                HasSubstr("Battery\nOn battery 68%\nRemaining 2:15\nCharge cycles 312\nBattery health 91%"));
    EXPECT_THAT(texts(MenuBarModule::battery), Not(HasSubstr("macOS")));
    EXPECT_THAT(czech(MenuBarModule::battery),
                HasSubstr("Baterie\nNa baterii 68%\nZbývá 2:15\nCyklů nabití 312\nZdraví baterie 91%"));
}

TEST_F(ModuleDetailViewTest, BatteryTellsHowItIsOnExternalPower) {
    const auto state = [&](bool isCharging, bool isFull) {
        StatsSnapshot snapshot = laptopSnapshot();
        snapshot.battery =
            BatteryInfo{68, isCharging, true, isFull, std::nullopt, 45, std::nullopt, std::nullopt};
        parts.publish(snapshot);
        return texts(MenuBarModule::battery);
    };
    EXPECT_THAT(state(true, true), HasSubstr("Charged 68%"));
    EXPECT_THAT(state(true, false), HasSubstr("Charging 68%\nTo full 45 min"));
    EXPECT_THAT(state(false, false), HasSubstr("Plugged in 68%"));
}

TEST_F(ModuleDetailViewTest, BatterylessMachineSaysSo) {
    parts.publish(StatsSnapshot{});
    EXPECT_EQ(texts(MenuBarModule::battery), "Battery\nBattery not available");
    EXPECT_EQ(czech(MenuBarModule::battery), "Baterie\nBaterie není dostupná");
}

TEST_F(ModuleDetailViewTest, TemperatureShowsPowerAndFans) {
    EXPECT_EQ(texts(MenuBarModule::temp),
              "Temperature\nCPU 64 °C\nGPU 51 °C\nPower Draw 18.4 W\nFan 1 2412 RPM\n"
              "Fan 2 2380 RPM");
    EXPECT_THAT(czech(MenuBarModule::temp), HasSubstr("Ventilátor 1 2412 RPM"));
}

TEST_F(ModuleDetailViewTest, TemperatureOfAMachineWithoutAFan) {
    parts.publish(StatsSnapshot{});
    EXPECT_EQ(texts(MenuBarModule::temp), "Temperature\nCPU —\nPower Draw —\nPassive cooling (no fan)");
    EXPECT_THAT(czech(MenuBarModule::temp), HasSubstr("Pasivní chlazení (bez ventilátoru)"));
}

TEST_F(ModuleDetailViewTest, DiskAndNetworkShowTheirRates) {
    EXPECT_EQ(texts(MenuBarModule::disk), "Disk\nFree 412 / 994 GB\nRead 1.1 MB/s\nWrite 332.0 KB/s");
    EXPECT_EQ(texts(MenuBarModule::network),
              "Network\nDownload 2.3 MB/s\nUpload 85.9 KB/s\nTotal 9.8 GB\nLocal IP 192.168.1.23");
    EXPECT_EQ(czech(MenuBarModule::disk), "Disk\nVolno 412 / 994 GB\nČtení 1.1 MB/s\nZápis 332.0 KB/s");
    EXPECT_EQ(czech(MenuBarModule::network),
              "Síť\nStahování 2.3 MB/s\nOdesílání 85.9 KB/s\nCelkem 9.8 GB\nLokální IP 192.168.1.23");
}

TEST_F(ModuleDetailViewTest, FollowsTheReadingsWhileItIsShown) {
    ModuleDetailView view(MenuBarModule::cpu, parts.context());
    view.show();
    StatsSnapshot snapshot = laptopSnapshot();
    snapshot.cpu = 99;
    parts.publish(snapshot);
    QApplication::processEvents();
    EXPECT_THAT(shownTexts(view), HasSubstr("Total 99 %"));
}

TEST_F(ModuleDetailViewTest, StaysLowerThanAScreenWithManyCores) {
    parts.publish(extremeSnapshot());
    ModuleDetailView view(MenuBarModule::cpu, parts.context());
    EXPECT_LT(view.sizeHint().height(), 600);
    EXPECT_FALSE(isBlank(painted(view, view.sizeHint())));
}

} // namespace tarvo::ui
