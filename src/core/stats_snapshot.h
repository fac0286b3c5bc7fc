#pragma once

#include "platform/clock.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

struct BatteryInfo {
    std::int64_t percentage = 0; ///< normally 0 to 100, not clamped
    bool isCharging = false;
    bool isPluggedIn = false;
    bool isFullyCharged = false;
    std::optional<std::int64_t> timeToEmptyMinutes{}; ///< positive when present
    std::optional<std::int64_t> timeToFullMinutes{};  ///< positive when present
    std::optional<std::int64_t> cycleCount{};
    std::optional<std::int64_t> healthPercent{}; ///< full charge against design, at most 100
    bool operator==(const BatteryInfo&) const = default;
};

struct TimeMachineInfo {
    bool isRunning = false;
    std::optional<double> percent{}; ///< progress of the running backup, 0 to 100
    std::optional<WallTime> lastBackupDate{};
    bool operator==(const TimeMachineInfo&) const = default;
};

enum class ProcessSort { cpu, memory };

struct ProcInfo {
    std::int32_t pid = 0;
    std::string name{};    ///< last component of the command path
    double cpu = 0;        ///< percent of one core; can exceed 100
    double memPercent = 0; ///< resident share of physical memory
    bool operator==(const ProcInfo&) const = default;
};

struct NetProcInfo {
    std::string name{};
    std::uint64_t bytesIn = 0;
    std::uint64_t bytesOut = 0;
    bool operator==(const NetProcInfo&) const = default;
};

/// Everything known about the machine at the latest tick. A plain value; default-constructed it is the empty
/// snapshot. Absent always means "not known or not available here", never zero. Rates are bytes per second,
/// memory is in GB of 2^30 bytes, disk capacities in GB of 10^9 bytes, percentages run 0 to 100.
struct StatsSnapshot {
    double cpu = 0;                ///< every tick
    std::vector<double> perCore{}; ///< every tick; kernel order
    double memPercent = 0;         ///< every tick, as all memory and load fields
    double memUsedGB = 0;
    double memTotalGB = 0;
    double memActiveGB = 0;
    double memWiredGB = 0;
    double memCompressedGB = 0;
    double memInactiveGB = 0;
    double memFreeGB = 0;
    double swapUsedGB = 0;
    double swapTotalGB = 0;
    double loadAvg1 = 0;
    double loadAvg5 = 0;
    double loadAvg15 = 0;
    std::optional<double> cpuTemp{}; ///< degrees Celsius; detail cadence, as all sensor fields
    std::optional<double> gpuTemp{}; ///< degrees Celsius
    std::optional<double> gpuUtil{}; ///< percent
    bool hasFan = false;
    std::vector<double> fanRPMs{}; ///< revolutions per minute, fan-index order
    std::optional<double> powerWatts{};
    std::optional<double> diskFreeGB{};           ///< slow cadence
    std::optional<double> diskTotalGB{};          ///< slow cadence
    double diskReadRate = 0;                      ///< detail cadence
    double diskWriteRate = 0;                     ///< detail cadence
    double netInRate = 0;                         ///< every tick
    double netOutRate = 0;                        ///< every tick
    std::optional<std::string> localIP{};         ///< dotted decimal; detail cadence
    std::optional<std::string> publicIP{};        ///< every 300 s once started
    std::uint64_t totalNetIn = 0;                 ///< bytes; every tick
    std::uint64_t totalNetOut = 0;                ///< bytes; every tick
    std::optional<BatteryInfo> battery{};         ///< slow cadence
    std::vector<ProcInfo> topCPU{};               ///< process cadence, heaviest first
    std::vector<ProcInfo> topMem{};               ///< process cadence, heaviest first
    std::vector<NetProcInfo> topNetProcesses{};   ///< extras cadence
    std::optional<TimeMachineInfo> timeMachine{}; ///< extras cadence
    std::optional<std::string> wifiSSID{};        ///< extras cadence
    bool operator==(const StatsSnapshot&) const = default;
};

} // namespace tarvo
