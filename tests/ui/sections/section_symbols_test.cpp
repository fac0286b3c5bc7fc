// The symbol and the colour before each row of the sections.
#include "ui/detail/overview_section.h"
#include "ui/detail_fixture.h"
#include "ui/elements/hero_stat_card.h"
#include "ui/elements/stat_row.h"
#include "ui/elements/volume_row.h"
#include "ui/sections/alert_row.h"
#include "ui/sections/battery_section.h"
#include "ui/sections/bluetooth_section.h"
#include "ui/sections/cpu_section.h"
#include "ui/sections/disk_section.h"
#include "ui/sections/history_section.h"
#include "ui/sections/memory_section.h"
#include "ui/sections/network_section.h"
#include "ui/sections/processes_section.h"
#include "ui/sections/sensors_section.h"

#include <QApplication>

#include <gtest/gtest.h>

namespace tarvo::ui {
namespace {

struct SectionSymbols : ::testing::Test {
    SectionSymbols() {
        parts.alerts = {{{}, WallTime{}, "High CPU Usage", ""},
                        {{}, WallTime{}, "Low Disk Space", ""},
                        {{}, WallTime{}, "Nízká baterie", ""},
                        {{}, WallTime{}, "Hello", ""}};
        parts.publish(laptopSnapshot());
    }

    // "symbol label" of everything visible that has a symbol, one a line, in order of creation.
    template <typename SectionType>
    std::string symbols() {
        SectionType section(context, nullptr);
        section.resize(760, 600);
        section.show();
        parts.dispatcher.runAll();
        QApplication::processEvents();
        std::string text;
        for (const QWidget* widget : section.template findChildren<QWidget*>()) {
            if (widget->isVisibleTo(&section)) text += symbolOf(*widget);
        }
        return text;
    }

    static std::string symbolOf(const QWidget& widget) {
        if (const auto* row = dynamic_cast<const StatRow*>(&widget))
            return line(row->fields(), row->fields().label);
        if (const auto* header = dynamic_cast<const SectionHeader*>(&widget))
            return line(header->fields(), header->fields().title);
        if (const auto* card = dynamic_cast<const HeroStatCard*>(&widget))
            return line(card->fields(), card->fields().title);
        if (const auto* row = dynamic_cast<const VolumeRow*>(&widget))
            return line(row->fields(), row->fields().name);
        if (const auto* row = dynamic_cast<const AlertRow*>(&widget))
            return line(row->fields(), row->fields().title);
        return {};
    }

    template <typename Fields>
    static std::string line(const Fields& fields, const std::string& label) {
        return fields.icon + " " + label + "\n";
    }

    DetailParts parts;
    DetailContext context = parts.detail();
};

} // namespace

TEST_F(SectionSymbols, OfTheOverview) {
    EXPECT_EQ(symbols<OverviewSection>(), "square.grid.2x2.fill Overview\n"
                                          "cpu.fill CPU\n"
                                          "memorychip.fill Memory\n"
                                          "internaldrive.fill Disk\n"
                                          "circle.dashed Free\n"
                                          "arrow.up.arrow.down.circle.fill Disk I/O\n"
                                          "network Network\n"
                                          "arrow.down.circle.fill Download\n"
                                          "arrow.up.circle.fill Upload\n"
                                          "battery.100percent Battery\n"
                                          "heart.fill Battery health\n"
                                          "thermometer.medium Temperature\n"
                                          "thermometer.medium GPU\n"
                                          "square.grid.3x3.fill Power Draw\n");
}

TEST_F(SectionSymbols, OfTheOverviewsBatteryStayTheSameHoweverFullItIs) {
    StatsSnapshot snapshot = laptopSnapshot();
    snapshot.battery->percentage = 12;
    parts.publish(snapshot);
    EXPECT_NE(symbols<OverviewSection>().find("battery.100percent Battery\n"), std::string::npos);
}

TEST_F(SectionSymbols, OfProcessorAndMemory) {
    EXPECT_EQ(symbols<CPUSection>(), "cpu.fill CPU\n"
                                     "1.circle.fill 1 min\n"
                                     "5.circle.fill 5 min\n"
                                     "15.circle.fill 15 min\n");
    EXPECT_EQ(symbols<MemorySection>(), "memorychip.fill Memory\n"
                                        "lock.fill Wired\n"
                                        "bolt.fill Active\n"
                                        "arrow.down.right.and.arrow.up.left Compressed\n"
                                        "moon.fill Inactive\n"
                                        "circle.dashed Free\n"
                                        "arrow.left.arrow.right Swap\n");
}

TEST_F(SectionSymbols, OfDisksAndSensors) {
    EXPECT_EQ(symbols<DiskSection>(), "internaldrive.fill Disks\n"
                                      "arrow.up.arrow.down.circle.fill Disk I/O\n"
                                      "arrow.down Read\n"
                                      "arrow.up Write\n"
                                      "internaldrive.fill System\n"
                                      "externaldrive.fill Stick\n");
    EXPECT_EQ(symbols<SensorsSection>(), "thermometer.medium Sensors\n"
                                         "thermometer.medium Sensors found\n"
                                         "bolt.fill Power Draw\n"
                                         "fan.fill Fan 1\n"
                                         "fan.fill Fan 2\n");
}

TEST_F(SectionSymbols, OfBatteryAndBluetooth) {
    EXPECT_EQ(symbols<BatterySection>(), "battery.100percent Battery\n"
                                         "battery.75percent on battery\n"
                                         "clock.fill Remaining\n"
                                         "arrow.triangle.2.circlepath Cycle Count\n"
                                         "heart.fill Battery health\n"
                                         "bolt.fill Power Draw\n");
    EXPECT_EQ(symbols<BluetoothSection>(), "dot.radiowaves.left.and.right Bluetooth\n"
                                           "computermouse.fill Mouse\n"
                                           "headphones Headset\n");
}

TEST_F(SectionSymbols, OfTheTables) {
    EXPECT_EQ(symbols<NetworkSection>(), "network Network\n");
    ProcessesSection section(context, nullptr);
    section.show();
    parts.dispatcher.runAll();
    const QAbstractItemModel& table = *section.table().model();
    EXPECT_EQ(table.index(0, table.columnCount() - 1).data(cellSymbolRole),
              QStringLiteral("xmark.circle.fill"));
    EXPECT_EQ(table.index(0, 0).data(cellIconRole), 412);
    EXPECT_EQ(symbols<ProcessesSection>(), "list.bullet.rectangle.fill Processes\n");
}

TEST_F(SectionSymbols, OfTheAlertsFollowTheirTitles) {
    EXPECT_EQ(symbols<HistorySection>(), "clock.arrow.circlepath History\n"
                                         "cpu.fill High CPU Usage\n"
                                         "internaldrive.fill Low Disk Space\n"
                                         "battery.25percent Nízká baterie\n"
                                         "bell.fill Hello\n");
}

} // namespace tarvo::ui
