#pragma once

#include "core/reader_records.h"
#include "sensors/sensor_reading.h"
#include "sensors/smc.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tarvo {

/// Temperatures, fan speeds and system power from the controller's keys. Opens the controller and finds its
/// keys once, when it is made, on the making thread; keys that appear later are never picked up. The readings
/// only read what was found, so they may run on two threads at once.
class SensorMonitor {
public:
    static constexpr std::size_t maxCPUKeys = 16;
    static constexpr std::size_t maxGPUKeys = 12;

    SensorMonitor();
    ~SensorMonitor();
    SensorMonitor(const SensorMonitor&) = delete;
    SensorMonitor& operator=(const SensorMonitor&) = delete;

    bool opened() const { return opened_; }
    const std::vector<std::string>& cpuKeys() const { return cpuKeys_; }
    const std::vector<std::string>& gpuKeys() const { return gpuKeys_; }
    /// 0 when unknown.
    std::int64_t fanCount() const { return fanCount_; }

    /// The readings of one refresh: the found keys, the fans and the power, nothing else. Off the main
    /// thread.
    SensorReadings read() const;
    /// Every plausible temperature of the whole key table by key. Slow: only when someone asks to see them.
    std::vector<SensorReading> readAllTemperatures() const;

private:
    void discoverKeys();
    static std::optional<CSMCReadResult> readRaw(const std::string& key);
    static std::optional<double> readValue(const std::string& key);
    static std::optional<double> average(const std::vector<std::string>& keys);

    bool opened_ = false;
    std::vector<std::string> cpuKeys_;
    std::vector<std::string> gpuKeys_;
    std::int64_t fanCount_ = 0;
};

} // namespace tarvo
