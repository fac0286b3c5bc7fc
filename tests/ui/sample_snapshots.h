#pragma once

#include "core/stats_snapshot.h"

#include <cmath>

namespace tarvo::ui {

/// A laptop at work: every reading is there.
inline StatsSnapshot laptopSnapshot() {
    StatsSnapshot snapshot;
    snapshot.cpu = 23.4;
    snapshot.perCore = {12, 61, 8, 87, 33, 5, 20, 44};
    snapshot.memPercent = 61.2;
    snapshot.memUsedGB = 9.8;
    snapshot.memTotalGB = 16;
    snapshot.cpuTemp = 64.2;
    snapshot.gpuTemp = 51;
    snapshot.gpuUtil = 12;
    snapshot.hasFan = true;
    snapshot.fanRPMs = {2412, 2380};
    snapshot.powerWatts = 18.4;
    snapshot.diskFreeGB = 412;
    snapshot.diskTotalGB = 994;
    snapshot.diskReadRate = 1.2e6;
    snapshot.diskWriteRate = 340'000;
    snapshot.netInRate = 2.4e6;
    snapshot.netOutRate = 88'000;
    snapshot.localIP = "192.168.1.23";
    snapshot.publicIP = "203.0.113.7";
    snapshot.totalNetIn = 9'400'000'000;
    snapshot.totalNetOut = 1'100'000'000;
    snapshot.battery = BatteryInfo{68, false, false, false, 135, std::nullopt, 312, 91};
    snapshot.topCPU = {
        {412, "firefox", 38.2, 9.1}, {77, "gnome-shell", 12.5, 3.2}, {9001, "clangd", 8.8, 14.4}};
    snapshot.topMem = snapshot.topCPU;
    snapshot.topNetProcesses = {{"firefox", 5'200'000'000, 210'000'000},
                                {"syncthing", 640'000'000, 1'300'000'000}};
    snapshot.timeMachine = TimeMachineInfo{true, 42.0, WallTime{std::chrono::seconds{1'763'200'000}}};
    snapshot.wifiSSID = "Home";
    return snapshot;
}

/// As large as readings come: many cores and fans, very long names, a rate after a counter reset.
inline StatsSnapshot extremeSnapshot() {
    StatsSnapshot snapshot = laptopSnapshot();
    snapshot.cpu = 100;
    snapshot.perCore.clear();
    for (int core = 0; core < 64; ++core)
        snapshot.perCore.push_back(std::fmod(core * 37.0, 101));
    snapshot.memUsedGB = 1999.9;
    snapshot.memTotalGB = 2048;
    snapshot.fanRPMs.assign(12, 12345);
    snapshot.powerWatts = 1400;
    snapshot.cpuTemp = 112;
    snapshot.netInRate = 5120.0 * 1024 * 1024 * 1024;
    snapshot.netOutRate = snapshot.netInRate;
    snapshot.diskReadRate = snapshot.netInRate;
    snapshot.diskWriteRate = snapshot.netInRate;
    snapshot.diskFreeGB = 123'456;
    snapshot.diskTotalGB = 999'999;
    snapshot.totalNetIn = ~0ULL / 4;
    snapshot.wifiSSID = std::string(200, 'W');
    for (ProcInfo& process : snapshot.topCPU)
        process.name = std::string(200, 'w');
    for (NetProcInfo& process : snapshot.topNetProcesses)
        process.name = std::string(200, 'w');
    return snapshot;
}

} // namespace tarvo::ui
