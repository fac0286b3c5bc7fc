#pragma once

#include "core/stats_readers.h"

#include <string>
#include <vector>

namespace tarvo {

/// Every reader of the model, answering the plain values below and noting each call by name.
/// It outlives the readers it makes.
class ScriptedReaders {
public:
    StatsReaders readers() {
        StatsReaders made;
        connectEveryTick(made);
        connectSlowAndDetail(made);
        connectBackground(made);
        return made;
    }

    int count(const std::string& name) const {
        int found = 0;
        for (const auto& call : calls)
            found += call == name ? 1 : 0;
        return found;
    }

    CPUUsage cpu{12.5, {10, 15}};
    MemoryInfo memory{.memPercent = 40, .memUsedGB = 6.4, .memTotalGB = 16};
    std::optional<LoadAverages> load = LoadAverages{0.5, 0.25, 0.125};
    NetworkTotals network{1'000, 500};
    std::optional<DiskSpace> space = DiskSpace{100, 500};
    std::optional<BatteryInfo> battery = BatteryInfo{.percentage = 80};
    DiskIOTotals diskIO{4'000, 2'000};
    std::optional<std::string> localIP = "192.0.2.10";
    SensorReadings sensors{
        .cpuTempCelsius = 55, .gpuTempCelsius = 48, .hasFan = true, .fanRPMs = {1200}, .powerWatts = 9};
    std::optional<double> gpuUtil = 33;
    std::vector<ProcInfo> byCPU{{.pid = 10, .name = "compiler", .cpu = 180, .memPercent = 2}};
    std::vector<ProcInfo> byMemory{{.pid = 20, .name = "browser", .cpu = 3, .memPercent = 25}};
    std::vector<NetProcInfo> netProcesses{{.name = "sync", .bytesIn = 10, .bytesOut = 20}};
    TimeMachineInfo timeMachine{.isRunning = true, .percent = 12};
    std::optional<std::string> ssid = "Attic";

    std::vector<std::string> calls;
    std::vector<std::int64_t> limits;
    /// The completions of the look-ups that wait for an answer, in order.
    std::vector<std::function<void(std::optional<std::string>)>> publicIPRequests;

private:
    void connectEveryTick(StatsReaders& made) {
        made.cpuUsage = [this]() -> const CPUUsage& { return note("cpuUsage"), cpu; };
        made.memoryUsage = [this] { return note("memoryUsage"), memory; };
        made.loadAverages = [this] { return note("loadAverages"), load; };
        made.networkTotals = [this] { return note("networkTotals"), network; };
    }
    void connectSlowAndDetail(StatsReaders& made) {
        made.diskSpace = [this] { return note("diskSpace"), space; };
        made.batteryInfo = [this] { return note("batteryInfo"), battery; };
        made.diskIOTotals = [this] { return note("diskIOTotals"), diskIO; };
        made.localIPAddress = [this] { return note("localIPAddress"), localIP; };
        made.fetchPublicIP = [this](auto completion) {
            note("fetchPublicIP");
            publicIPRequests.push_back(std::move(completion));
        };
    }
    void connectBackground(StatsReaders& made) {
        made.sensorReadings = [this] { return note("sensorReadings"), sensors; };
        made.gpuUtilizationPercent = [this] { return note("gpuUtilizationPercent"), gpuUtil; };
        made.topProcesses = [this](ProcessSort sort, std::int64_t limit) {
            limits.push_back(limit);
            return sort == ProcessSort::cpu ? (note("topCPU"), byCPU) : (note("topMem"), byMemory);
        };
        made.topNetworkProcesses = [this](std::int64_t limit) {
            limits.push_back(limit);
            return note("topNetworkProcesses"), netProcesses;
        };
        made.timeMachineInfo = [this] { return note("timeMachineInfo"), timeMachine; };
        made.currentSSID = [this] { return note("currentSSID"), ssid; };
        made.sampleProcessDemand = [this] { note("sampleProcessDemand"); };
    }
    void note(const char* name) { calls.emplace_back(name); }
};

} // namespace tarvo
