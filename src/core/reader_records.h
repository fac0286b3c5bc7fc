#pragma once

#include <cstdint>
#include <optional>
#include <vector>

/// What the readers hand to the model; the records that a snapshot holds are in stats_snapshot.h.
namespace tarvo {

/// Busy share of the processor, percent 0 to 100.
struct CPUUsage {
    double total = 0;
    std::vector<double> perCore{}; ///< one a logical core, kernel order
    bool operator==(const CPUUsage&) const = default;
};

/// GB of 2^30 bytes.
struct MemoryInfo {
    double memPercent = 0; ///< used / physical x 100
    double memUsedGB = 0;  ///< active + wired + compressed
    double memTotalGB = 0;
    double memActiveGB = 0;
    double memWiredGB = 0;
    double memCompressedGB = 0;
    double memInactiveGB = 0;
    double memFreeGB = 0;
    double swapUsedGB = 0;
    double swapTotalGB = 0;
    bool operator==(const MemoryInfo&) const = default;
};

struct LoadAverages {
    double one = 0;
    double five = 0;
    double fifteen = 0;
};

/// Decimal gigabytes, 10^9 bytes.
struct DiskSpace {
    double freeGB = 0;
    double totalGB = 0;
    bool operator==(const DiskSpace&) const = default;
};

/// Bytes since the drivers started counting.
struct DiskIOTotals {
    std::uint64_t read = 0;
    std::uint64_t write = 0;
    bool operator==(const DiskIOTotals&) const = default;
};

/// Bytes since the interfaces started counting.
struct NetworkTotals {
    std::uint64_t inBytes = 0;
    std::uint64_t outBytes = 0;
    bool operator==(const NetworkTotals&) const = default;
};

struct SensorReadings {
    std::optional<double> cpuTempCelsius{};
    std::optional<double> gpuTempCelsius{};
    bool hasFan = false;
    std::vector<double> fanRPMs{}; ///< fan order; a fan that could not be read is left out
    std::optional<double> powerWatts{};
    bool operator==(const SensorReadings&) const = default;
};

} // namespace tarvo
