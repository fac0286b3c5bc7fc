#pragma once

#include "core/reader_records.h"
#include "core/stats_snapshot.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// Everything the model asks of the rest of the program, one function a reading. A function that is not set
/// answers nothing: the fields it would fill keep their empty values. The composition root connects them.
struct StatsReaders {
    // Main thread, every tick; must return at once.
    std::function<const CPUUsage&()> cpuUsage; ///< the reference is valid until the next call
    std::function<MemoryInfo()> memoryUsage;
    std::function<std::optional<LoadAverages>()> loadAverages;
    std::function<NetworkTotals()> networkTotals;

    // Main thread, slow cadence.
    std::function<std::optional<DiskSpace>()> diskSpace;
    std::function<std::optional<BatteryInfo>()> batteryInfo;

    // Main thread, detail cadence.
    std::function<DiskIOTotals()> diskIOTotals;
    std::function<std::optional<std::string>()> localIPAddress;
    /// Hands the address to the completion, on any thread, absent when the look-up failed.
    std::function<void(std::function<void(std::optional<std::string>)>)> fetchPublicIP;

    // Serial hardware queue.
    std::function<SensorReadings()> sensorReadings;
    std::function<std::optional<double>()> gpuUtilizationPercent;

    // Global queues.
    std::function<std::vector<ProcInfo>(ProcessSort, std::int64_t limit)> topProcesses;
    std::function<std::vector<NetProcInfo>(std::int64_t limit)> topNetworkProcesses;
    std::function<TimeMachineInfo()> timeMachineInfo;
    std::function<std::optional<std::string>()> currentSSID;
    std::function<void()> sampleProcessDemand;
};

/// The persisted history as the model sees it. Main thread only.
class HistoryRecorder {
public:
    virtual ~HistoryRecorder() = default;
    /// When the last sample of this run was accepted.
    virtual WallTime lastSampleTime() const = 0;
    /// Offers a sample taken now; the store decides whether it is kept.
    virtual void maybeRecord(double cpu, double mem, std::optional<double> cpuTemp) = 0;
};

} // namespace tarvo
