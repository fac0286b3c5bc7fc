#include "snapshot_json.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <limits>

namespace tarvo::status {
namespace {

using OrderedJSON = nlohmann::ordered_json;

OrderedJSON parsed(const StatsSnapshot& snapshot) {
    std::string out;
    appendSnapshotJSON(out, snapshot);
    return OrderedJSON::parse(out);
}
std::vector<std::string> keysOf(const OrderedJSON& object) {
    std::vector<std::string> keys;
    for (const auto& item : object.items())
        keys.push_back(item.key());
    return keys;
}

StatsSnapshot fullSnapshot() {
    StatsSnapshot snapshot;
    snapshot.cpu = 12.5;
    snapshot.perCore = {10, 15};
    snapshot.cpuTemp = 61.5;
    snapshot.gpuTemp = 55;
    snapshot.gpuUtil = 7;
    snapshot.hasFan = true;
    snapshot.fanRPMs = {1200};
    snapshot.powerWatts = 33.25;
    snapshot.diskFreeGB = 412;
    snapshot.diskTotalGB = 500;
    snapshot.localIP = "192.0.2.7";
    snapshot.publicIP = "";
    snapshot.totalNetIn = std::numeric_limits<std::uint64_t>::max();
    snapshot.battery = BatteryInfo{.percentage = 85,
                                   .isCharging = false,
                                   .isPluggedIn = true,
                                   .isFullyCharged = true,
                                   .timeToEmptyMinutes = 90,
                                   .timeToFullMinutes = 10,
                                   .cycleCount = 312,
                                   .healthPercent = 91};
    snapshot.topCPU = {{.pid = 7, .name = "make \"x\"", .cpu = 180.5, .memPercent = 2}};
    snapshot.topMem = {{.pid = 8, .name = "web\xFF", .cpu = 1, .memPercent = 30}};
    snapshot.topNetProcesses = {{.name = "curl", .bytesIn = 1, .bytesOut = 2}};
    snapshot.timeMachine = TimeMachineInfo{
        .isRunning = true, .percent = 50, .lastBackupDate = WallTime(std::chrono::seconds(1'763'265'193))};
    snapshot.wifiSSID = "Síť";
    return snapshot;
}

TEST(SnapshotJSON, HasEveryFieldInOrder) {
    EXPECT_THAT(keysOf(parsed(fullSnapshot())),
                testing::ElementsAre(
                    "cpu", "perCore", "memPercent", "memUsedGB", "memTotalGB", "memActiveGB", "memWiredGB",
                    "memCompressedGB", "memInactiveGB", "memFreeGB", "swapUsedGB", "swapTotalGB", "loadAvg1",
                    "loadAvg5", "loadAvg15", "cpuTemp", "gpuTemp", "gpuUtil", "hasFan", "fanRPMs",
                    "powerWatts", "diskFreeGB", "diskTotalGB", "diskReadRate", "diskWriteRate", "netInRate",
                    "netOutRate", "localIP", "publicIP", "totalNetIn", "totalNetOut", "battery", "topCPU",
                    "topMem", "topNetProcesses", "timeMachine", "wifiSSID"));
}

TEST(SnapshotJSON, NestsTheRecords) {
    const auto json = parsed(fullSnapshot());
    EXPECT_EQ(json["battery"].dump(),
              R"({"percentage":85,"isCharging":false,"isPluggedIn":true,"isFullyCharged":true,)"
              R"("timeToEmptyMinutes":90,"timeToFullMinutes":10,"cycleCount":312,"healthPercent":91})");
    EXPECT_EQ(json["topCPU"].dump(), R"([{"pid":7,"name":"make \"x\"","cpu":180.5,"memPercent":2}])");
    EXPECT_EQ(json["topNetProcesses"].dump(), R"([{"name":"curl","bytesIn":1,"bytesOut":2}])");
    EXPECT_EQ(json["timeMachine"].dump(),
              R"({"isRunning":true,"percent":50,"lastBackupDate":"2025-11-16T03:53:13Z"})");
}

TEST(SnapshotJSON, KeepsValuesAsTheyAre) {
    const auto json = parsed(fullSnapshot());
    EXPECT_EQ(json["cpu"], 12.5);
    EXPECT_EQ(json["perCore"].dump(), "[10,15]");
    EXPECT_EQ(json["hasFan"], true);
    EXPECT_EQ(json["publicIP"], "");
    EXPECT_EQ(json["wifiSSID"], "Síť");
    EXPECT_EQ(json["topMem"][0]["name"], "web\uFFFD");
    EXPECT_EQ(json["totalNetIn"].get<std::uint64_t>(), std::numeric_limits<std::uint64_t>::max());
}

TEST(SnapshotJSON, LeavesOutWhatIsAbsent) {
    const auto json = parsed(StatsSnapshot{});
    EXPECT_EQ(json.size(), 26u);
    for (const auto* key : {"cpuTemp", "gpuTemp", "gpuUtil", "powerWatts", "diskFreeGB", "diskTotalGB",
                            "localIP", "publicIP", "battery", "timeMachine", "wifiSSID"}) {
        EXPECT_FALSE(json.contains(key)) << key;
    }
    EXPECT_EQ(json["perCore"].dump(), "[]");
    EXPECT_EQ(json["hasFan"], false);
}

TEST(SnapshotJSON, LeavesOutAbsentValuesOfNestedRecords) {
    StatsSnapshot snapshot;
    snapshot.battery = BatteryInfo{};
    snapshot.timeMachine = TimeMachineInfo{};
    const auto json = parsed(snapshot);
    EXPECT_EQ(json["battery"].size(), 4u);
    EXPECT_EQ(json["timeMachine"].dump(), R"({"isRunning":false})");
}

TEST(SnapshotJSON, NeverWritesWhatIsNotANumber) {
    StatsSnapshot snapshot;
    snapshot.cpu = std::numeric_limits<double>::quiet_NaN();
    snapshot.netInRate = std::numeric_limits<double>::infinity();
    snapshot.cpuTemp = -std::numeric_limits<double>::infinity();
    snapshot.perCore = {1, std::numeric_limits<double>::quiet_NaN(), 3};
    const auto json = parsed(snapshot);
    EXPECT_FALSE(json.contains("cpu"));
    EXPECT_FALSE(json.contains("netInRate"));
    EXPECT_FALSE(json.contains("cpuTemp"));
    EXPECT_EQ(json["perCore"].dump(), "[1,null,3]");
}

TEST(SnapshotJSON, IsOneLine) {
    auto snapshot = fullSnapshot();
    snapshot.wifiSSID = "two\nlines";
    std::string out;
    appendSnapshotJSON(out, snapshot);
    EXPECT_EQ(out.find('\n'), std::string::npos);
}

} // namespace
} // namespace tarvo::status
