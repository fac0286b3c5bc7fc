#include "platform/linux/system_power.h"

#include "platform/linux/energy_meter.h"
#include "platform/linux/folder.h"
#include "platform/linux/kept_file.h"
#include "platform/linux/power_supply.h"
#include "platform/linux/sensor_file.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace tarvo::linux_platform {
namespace {

using Source = std::function<std::optional<double>()>;

/// Files of one battery. A battery is known by its name: one that was replaced is the same source.
class BatteryFiles {
public:
    explicit BatteryFiles(const std::string& folder)
        : status_(folder + "/status"), power_(folder + "/power_now"), current_(folder + "/current_now"),
          voltage_(folder + "/voltage_now") {}

    bool isDischarging() { return text(status_) == "Discharging"; }
    /// Whether the driver offers what is needed; the values may come and go.
    bool canAnswer() const {
        return pathExists(power_.path()) || (pathExists(current_.path()) && pathExists(voltage_.path()));
    }
    /// 0 when the firmware does not know.
    double watts() {
        if (const auto microwatts = number(power_)) return std::abs(static_cast<double>(*microwatts)) / 1e6;
        const auto microamperes = number(current_);
        const auto microvolts = number(voltage_);
        if (!microamperes || !microvolts) return 0;
        return std::abs(static_cast<double>(*microamperes)) * static_cast<double>(*microvolts) / 1e12;
    }

private:
    static std::string_view text(KeptFile& file) {
        auto content = file.read().value_or("");
        if (content.ends_with('\n')) content.remove_suffix(1);
        return content;
    }
    static std::optional<std::int64_t> number(KeptFile& file) {
        return parseNumber<std::int64_t>(text(file));
    }

    KeptFile status_;
    KeptFile power_;
    KeptFile current_;
    KeptFile voltage_;
};

void addBatteries(const Root& root, std::vector<Source>& sources) {
    auto batteries = std::make_shared<std::vector<BatteryFiles>>();
    for (const auto& name : systemBatteryNames(root)) {
        BatteryFiles files(powerSupplyFolder(root, name));
        if (files.canAnswer()) batteries->push_back(std::move(files));
    }
    if (batteries->empty()) return;
    sources.push_back([batteries]() -> std::optional<double> {
        double sum = 0;
        for (auto& battery : *batteries) {
            if (battery.isDischarging()) sum += battery.watts();
        }
        return sum > 0 ? std::optional(sum) : std::nullopt;
    });
}

bool isCurrentMonitor(const HwmonChip& chip) {
    return chip.name.starts_with("ina2") || chip.name.starts_with("ina3");
}

bool isWholeSystem(const HwmonChip& chip, const HwmonInput& input) {
    if (chip.name == "power_meter") return true;
    if (chip.name == "macsmc_hwmon") return input.label == "Total System Power";
    const auto& label = input.label;
    return isCurrentMonitor(chip) &&
           (label.find("VDD_IN") != std::string::npos || label.find("SYS") != std::string::npos);
}

Source powerSource(const SensorFolder& folder, const std::string& attribute) {
    auto file = std::make_shared<SensorFile>(folder, attribute);
    return [file]() -> std::optional<double> {
        const auto microwatts = file->readInteger();
        return microwatts ? std::optional(static_cast<double>(*microwatts) / 1e6) : std::nullopt;
    };
}

/// For meters that tell voltage and current of a channel, but not their product.
Source productSource(const SensorFolder& folder, int channel) {
    const auto number = std::to_string(channel);
    auto volts = std::make_shared<SensorFile>(folder, "in" + number + "_input");
    auto amperes = std::make_shared<SensorFile>(folder, "curr" + number + "_input");
    return [volts, amperes]() -> std::optional<double> {
        const auto millivolts = volts->readInteger();
        const auto milliamperes = amperes->readInteger();
        if (!millivolts || !milliamperes) return std::nullopt;
        return static_cast<double>(*millivolts) * static_cast<double>(*milliamperes) / 1e6;
    };
}

/// The channel's averaged power where the chip has it, else its present power, else voltage times current.
std::optional<Source> channelSource(const HwmonChip& chip, const HwmonInput& input,
                                    const SensorFolder& folder) {
    const auto has = [&chip](const std::string& attribute) {
        return std::any_of(chip.inputs.begin(), chip.inputs.end(),
                           [&attribute](const auto& other) { return other.attribute == attribute; });
    };
    const auto channel = std::to_string(input.index);
    if (input.kind == HwmonKind::power) {
        const auto average = "power" + channel + "_average";
        return powerSource(folder, has(average) ? average : input.attribute);
    }
    const bool measuresBoth = input.kind == HwmonKind::voltage && has("curr" + channel + "_input");
    if (!measuresBoth || has("power" + channel + "_input")) return std::nullopt;
    return productSource(folder, input.index);
}

void addMeters(const std::vector<HwmonChip>& chips, std::vector<Source>& sources) {
    for (const auto& chip : chips) {
        for (const auto& input : chip.inputs) {
            if (!isWholeSystem(chip, input)) continue;
            auto source = channelSource(chip, input, openSensorFolder(chip.folder));
            if (!source) continue;
            sources.push_back(std::move(*source));
            return; // a second channel of a meter would be a part of the first
        }
    }
}

void addPlatformDomain(const Root& root, const Clock& clock, std::vector<Source>& sources) {
    const auto base = root.path("/sys/class/powercap");
    for (const auto& name : folderEntries(base)) {
        const auto folder = base + "/" + name;
        if (!name.starts_with("intel-rapl:") || readAttribute(folder + "/name") != "psys") continue;
        auto energy = std::make_shared<SensorFile>(openSensorFolder(folder), "energy_uj");
        if (!energy->readInteger()) continue; // reserved to the administrator on most systems
        auto meter = std::make_shared<EnergyMeter>(
            readNumber<std::uint64_t>(folder + "/max_energy_range_uj").value_or(0));
        sources.push_back([energy, meter, &clock]() -> std::optional<double> {
            const auto microjoules = energy->readInteger();
            if (!microjoules || *microjoules < 0) return std::nullopt;
            return meter->watts(static_cast<std::uint64_t>(*microjoules), clock.steadyNow());
        });
        return;
    }
}

} // namespace

SystemPower::SystemPower(const Root& root, const Clock& clock, const std::vector<HwmonChip>& chips) {
    addBatteries(root, sources_);
    addMeters(chips, sources_);
    addPlatformDomain(root, clock, sources_);
}

std::optional<double> SystemPower::read() {
    const std::lock_guard lock(mutex_);
    for (const auto& source : sources_) {
        if (const auto watts = source()) return watts;
    }
    return std::nullopt;
}

} // namespace tarvo::linux_platform
