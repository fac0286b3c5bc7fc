#include "platform/linux/smc_key_builder.h"

#include "platform/linux/fan_sources.h"
#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"
#include "platform/linux/sensor_input.h"
#include "platform/linux/system_power.h"
#include "platform/linux/temperature_sources.h"

#include <fmt/format.h>

#include <map>
#include <utility>

namespace tarvo::linux_platform {
namespace {

constexpr std::size_t fansWithKey = 10; // F0Ac to F9Ac; a two-digit number leaves no room
constexpr const char* floating = "flt ";

using Reading = std::function<std::optional<double>()>;

Reading fixed(std::size_t value) {
    return [value] { return std::optional(static_cast<double>(value)); };
}

/// Shares one open folder among the inputs of a chip.
class InputFactory {
public:
    explicit InputFactory(const Clock& clock) : clock_(clock) {}

    Reading make(const std::string& folder, const std::string& attribute, double scale, bool isGPU) {
        auto& opened = folders_[folder];
        if (!opened) opened = openSensorFolder(folder);
        const auto status = isGPU ? "device/power/runtime_status" : "";
        auto input = std::make_shared<SensorInput>(clock_, opened, attribute, scale, status);
        return [input = std::move(input)] { return input->read(); };
    }

private:
    const Clock& clock_;
    std::map<std::string, SensorFolder> folders_;
};

/// Gives each temperature the next key of its group.
class TemperatureKeys {
public:
    void add(SensorGroup group, SensorName name, Reading read) {
        auto key = runningKey(keyPrefix(group), counts_[group]++);
        if (key) keys_.push_back({std::move(*key), floating, std::move(name), std::move(read)});
    }
    std::vector<SMCKey> take() { return std::move(keys_); }

private:
    std::map<SensorGroup, std::size_t> counts_;
    std::vector<SMCKey> keys_;
};

/// A graphics card that only NVIDIA's library can read.
Reading nvidiaReading(const std::shared_ptr<NVML>& nvml, const std::string& address,
                      const std::string& folder) {
    return [nvml, address, folder]() -> std::optional<double> {
        if (readAttribute(folder + "/power/runtime_status").value_or("").starts_with("suspend"))
            return std::nullopt;
        const bool maySleep = readAttribute(folder + "/power/control") == "auto";
        return nvml->temperature(address, maySleep ? NVML::After::closes : NVML::After::staysOpen);
    };
}

void addNVIDIA(const Root& root, const std::shared_ptr<NVML>& nvml, TemperatureKeys& keys) {
    const auto driver = root.path("/sys/bus/pci/drivers/nvidia");
    for (const auto& address : folderEntries(driver)) {
        if (!nvml || address.find(':') == std::string::npos) continue;
        keys.add(SensorGroup::gpu, {"nvidia", ""}, nvidiaReading(nvml, address, driver + "/" + address));
    }
}

std::vector<SMCKey> temperatureKeys(const Root& root, const std::vector<HwmonChip>& chips,
                                    InputFactory& inputs, const std::shared_ptr<NVML>& nvml) {
    constexpr double milli = 0.001;
    TemperatureKeys keys;
    bool nvidiaAdded = false;
    for (const auto& source : temperatureSources(chips, readThermalZones(root), readCPUCores(root))) {
        const bool isPastGPUs = source.group > SensorGroup::gpu;
        if (isPastGPUs && !std::exchange(nvidiaAdded, true)) addNVIDIA(root, nvml, keys);
        keys.add(source.group, source.name,
                 inputs.make(source.folder, source.attribute, milli, source.isGPU));
    }
    if (!nvidiaAdded) addNVIDIA(root, nvml, keys);
    return keys.take();
}

void addFans(const std::vector<HwmonChip>& chips, InputFactory& inputs, std::vector<SMCKey>& keys) {
    const auto fans = fanSources(chips);
    keys.push_back({"FNum", "ui8 ", {}, fixed(fans.size())});
    for (std::size_t i = 0; i < fans.size() && i < fansWithKey; ++i) {
        const auto& fan = fans[i];
        keys.push_back({fmt::format("F{}Ac", i), floating, fan.name,
                        inputs.make(fan.folder, fan.attribute, 1, fan.isGPU)});
    }
}

} // namespace

SMCKeyTable buildSMCKeyTable(const Root& root, const Clock& clock, const std::shared_ptr<NVML>& nvml) {
    const auto chips = readHwmonChips(root);
    InputFactory inputs(clock);
    std::vector<SMCKey> keys;
    keys.push_back({"#KEY", "ui32", {}, {}});
    addFans(chips, inputs, keys);
    auto power = std::make_shared<SystemPower>(root, clock, chips);
    if (power->exists()) keys.push_back({"PSTR", floating, {}, [power] { return power->read(); }});
    for (auto& key : temperatureKeys(root, chips, inputs, nvml))
        keys.push_back(std::move(key));
    keys.front().read = fixed(keys.size());
    return SMCKeyTable(std::move(keys));
}

} // namespace tarvo::linux_platform
