#include "sensors/sensor_monitor.h"

#include "sensors/sensor_decode.h"

#include <fmt/format.h>

#include <algorithm>
#include <cmath>
#include <string_view>

namespace tarvo {
namespace {

/// Fan 10 and later would have five characters in their key, which no controller can hold.
constexpr std::int64_t fansWithKey = 10;

bool isPlausible(double celsius) {
    return celsius > 0 && celsius < 130;
}

/// Calls `visit` with the name of every key in the controller's own order; skips the ones without a name.
template <typename Visit>
void forEachKey(Visit&& visit) {
    const auto count = static_cast<std::int32_t>(csmc_key_count());
    for (std::int32_t index = 0; index < count; ++index) {
        char name[5];
        if (csmc_key_at_index(static_cast<std::uint32_t>(index), name) == 1) visit(std::string_view(name));
    }
}

/// Truncating; absent where the value fits no integer.
std::optional<std::int64_t> wholeNumber(double value) {
    if (!std::isfinite(value) || std::abs(value) >= 9.2e18) return std::nullopt;
    return static_cast<std::int64_t>(value);
}

} // namespace

SensorMonitor::SensorMonitor() : opened_(csmc_open() == 0) {
    if (opened_) discoverKeys();
}

SensorMonitor::~SensorMonitor() {
    if (opened_) csmc_close();
}

void SensorMonitor::discoverKeys() {
    if (static_cast<std::int32_t>(csmc_key_count()) < 1) return;
    forEachKey([this](std::string_view name) {
        if (name.starts_with("Tp") || name.starts_with("Te")) {
            if (cpuKeys_.size() < maxCPUKeys) cpuKeys_.emplace_back(name);
        } else if (name.starts_with("Tg")) {
            if (gpuKeys_.size() < maxGPUKeys) gpuKeys_.emplace_back(name);
        }
    });
    const auto fans = readValue("FNum");
    if (fans) fanCount_ = wholeNumber(*fans).value_or(0);
}

SensorReadings SensorMonitor::read() const {
    SensorReadings readings;
    if (!opened_) return readings;
    readings.cpuTempCelsius = average(cpuKeys_);
    readings.gpuTempCelsius = average(gpuKeys_);
    for (std::int64_t fan = 0; fan < std::min(fanCount_, fansWithKey); ++fan) {
        const auto rpm = readValue(fmt::format("F{}Ac", fan));
        if (rpm) readings.fanRPMs.push_back(*rpm);
    }
    readings.hasFan = fanCount_ > 0;
    readings.powerWatts = readValue("PSTR");
    return readings;
}

std::vector<SensorReading> SensorMonitor::readAllTemperatures() const {
    std::vector<SensorReading> readings;
    if (!opened_) return readings;
    forEachKey([&readings](std::string_view name) {
        if (!name.starts_with('T')) return;
        std::string key(name);
        const auto celsius = readValue(key);
        if (celsius && isPlausible(*celsius)) readings.push_back({std::move(key), *celsius});
    });
    std::stable_sort(readings.begin(), readings.end(),
                     [](const SensorReading& a, const SensorReading& b) { return a.key < b.key; });
    return readings;
}

std::optional<CSMCReadResult> SensorMonitor::readRaw(const std::string& key) {
    const auto result = csmc_read_key(key.c_str());
    return result.success == 1 ? std::optional(result) : std::nullopt;
}

std::optional<double> SensorMonitor::readValue(const std::string& key) {
    const auto result = readRaw(key);
    return result ? decode(*result) : std::nullopt;
}

std::optional<double> SensorMonitor::average(const std::vector<std::string>& keys) {
    double sum = 0;
    int counted = 0;
    for (const auto& key : keys) {
        const auto celsius = readValue(key);
        if (!celsius || !isPlausible(*celsius)) continue;
        sum += *celsius;
        ++counted;
    }
    return counted > 0 ? std::optional(sum / counted) : std::nullopt;
}

} // namespace tarvo
