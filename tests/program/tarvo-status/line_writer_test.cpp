#include "line_writer.h"

#include "support/allocation_counter.h"
#include "support/memory_preference_store.h"

#include <gtest/gtest.h>

namespace tarvo::status {
namespace {

class LineWriterTest : public testing::Test {
protected:
    LineWriterTest() {
        snapshot.cpu = 23;
        snapshot.memPercent = 48;
    }

    std::string line(OutputFormat format) {
        return LineWriter(format, settings).write(snapshot, AppLanguage::en);
    }

    MemoryPreferenceStore store;
    Settings settings{store};
    StatsSnapshot snapshot;
};

TEST_F(LineWriterTest, WritesOneLineInEachFormat) {
    EXPECT_EQ(line(OutputFormat::text), "CPU 23% · RAM 48%\n");
    EXPECT_EQ(line(OutputFormat::json).substr(0, 10), "{\"cpu\":23,");
    EXPECT_EQ(line(OutputFormat::waybar).substr(0, 9), "{\"text\":\"");
    for (const auto format : {OutputFormat::text, OutputFormat::json, OutputFormat::waybar}) {
        EXPECT_EQ(line(format).find('\n'), line(format).size() - 1);
    }
}

TEST_F(LineWriterTest, ReplacesTheLineBefore) {
    LineWriter writer(OutputFormat::text, settings);
    writer.write(snapshot, AppLanguage::en);
    snapshot.cpu = 5;
    EXPECT_EQ(writer.write(snapshot, AppLanguage::en), "CPU 5% · RAM 48%\n");
}

TEST_F(LineWriterTest, AsksForNoMemoryInTheSteadyState) {
    for (const auto module : allMenuBarModules)
        store.set("menubar." + std::string(rawValue(module)), true);
    snapshot.perCore.assign(64, 12.345);
    snapshot.cpuTemp = 61.5;
    snapshot.diskFreeGB = 411.7;
    snapshot.netInRate = 123456;
    snapshot.battery = BatteryInfo{};
    for (const auto format : {OutputFormat::text, OutputFormat::json, OutputFormat::waybar}) {
        LineWriter writer(format, settings);
        writer.write(snapshot, AppLanguage::cs);
        const auto before = allocationCount();
        for (int i = 0; i < 10; ++i)
            writer.write(snapshot, AppLanguage::cs);
        EXPECT_EQ(allocationCount(), before);
    }
}

} // namespace
} // namespace tarvo::status
