#include "platform/linux/sensor_group.h"

#include <algorithm>
#include <array>
#include <initializer_list>

namespace tarvo::linux_platform {
namespace {

using GroupRule = SensorGroup (*)(const HwmonChip& chip, const HwmonInput& input);

bool containsOneOf(std::string_view text, std::initializer_list<std::string_view> parts) {
    return std::any_of(parts.begin(), parts.end(),
                       [text](auto part) { return text.find(part) != std::string_view::npos; });
}

bool hasLabel(const HwmonChip& chip, std::string_view beginning) {
    return std::any_of(chip.inputs.begin(), chip.inputs.end(), [beginning](const HwmonInput& input) {
        return input.kind == HwmonKind::temperature && input.label.starts_with(beginning);
    });
}

template <SensorGroup group>
SensorGroup always(const HwmonChip&, const HwmonInput&) {
    return group;
}

SensorGroup intelGroup(const HwmonChip&, const HwmonInput& input) {
    return input.label.starts_with("Core ") ? SensorGroup::performanceCore : SensorGroup::package;
}

// The dies' own sensors are true temperatures; the control value carries an offset on some models, so it is
// the last choice.
SensorGroup amdGroup(const HwmonChip& chip, const HwmonInput& input) {
    for (const std::string_view choice : {"Tccd", "Tdie", "Tctl"}) {
        if (!hasLabel(chip, choice)) continue;
        return input.label.starts_with(choice) ? SensorGroup::performanceCore : SensorGroup::package;
    }
    return input.index == 1 ? SensorGroup::performanceCore : SensorGroup::package;
}

SensorGroup processorGroup(const HwmonChip&, const HwmonInput& input) {
    const bool small = containsOneOf(input.label, {"Efficiency", "E-Core", "little"});
    return small ? SensorGroup::efficiencyCore : SensorGroup::performanceCore;
}

// A controller of the whole machine: only what it labels as processor counts as such.
SensorGroup wholeMachineGroup(const HwmonChip& chip, const HwmonInput& input) {
    return containsOneOf(input.label, {"CPU"}) ? processorGroup(chip, input) : SensorGroup::other;
}

SensorGroup gpuGroup(const HwmonChip&, const HwmonInput& input) {
    const bool isMain =
        input.label == "edge" || input.label == "pkg" || (input.label.empty() && input.index == 1);
    return isMain ? SensorGroup::gpu : SensorGroup::gpuOther;
}

struct ChipRule {
    std::string_view name;
    bool isPrefix;
    GroupRule group;
};

constexpr bool whole = false;
constexpr bool prefix = true;

// The first row that fits wins.
constexpr std::array<ChipRule, 30> chipRules{{
    {"coretemp", whole, intelGroup},
    {"k10temp", whole, amdGroup},
    {"zenpower", whole, amdGroup},
    {"via_cputemp", whole, processorGroup},
    {"fam15h", prefix, processorGroup},
    {"cpu_thermal", whole, processorGroup},
    {"soc_thermal", whole, processorGroup},
    {"scpi_sensors", whole, processorGroup},
    {"macsmc_hwmon", whole, wholeMachineGroup},
    {"amdgpu", whole, gpuGroup},
    {"nouveau", whole, gpuGroup},
    {"xe", whole, gpuGroup},
    {"i915", whole, gpuGroup},
    {"nvme", whole, always<SensorGroup::storage>},
    {"drivetemp", whole, always<SensorGroup::storage>},
    {"jc42", whole, always<SensorGroup::memory>},
    {"spd5118", whole, always<SensorGroup::memory>},
    {"iwlwifi", prefix, always<SensorGroup::wireless>},
    {"mt76", prefix, always<SensorGroup::wireless>},
    {"mt79", prefix, always<SensorGroup::wireless>},
    {"ath", prefix, always<SensorGroup::wireless>},
    {"acpitz", whole, always<SensorGroup::acpiZone>},
    {"BAT", prefix, always<SensorGroup::battery>},
    {"nct6", prefix, always<SensorGroup::board>},
    {"it8", prefix, always<SensorGroup::board>},
    {"f71", prefix, always<SensorGroup::board>},
    {"w83", prefix, always<SensorGroup::board>},
    {"asus", prefix, always<SensorGroup::board>},
    {"dell_smm", whole, always<SensorGroup::board>},
    {"thinkpad", whole, always<SensorGroup::board>},
}};

// Zones are listed as chips too where the kernel is built so; such a chip bears the zone's type.
bool isThermalZone(const HwmonChip& chip) {
    return containsOneOf(chip.devicePath, {"/thermal_zone"});
}

} // namespace

std::string_view keyPrefix(SensorGroup group) {
    constexpr std::array<std::string_view, 12> prefixes{"Tp", "Te", "Tg", "TC", "TG", "TN",
                                                        "TM", "TW", "TB", "TA", "TV", "TX"};
    return prefixes.at(static_cast<std::size_t>(group));
}

SensorGroup temperatureGroup(const HwmonChip& chip, const HwmonInput& input) {
    const std::string_view name = chip.name;
    for (const auto& rule : chipRules) {
        if (rule.isPrefix ? name.starts_with(rule.name) : name == rule.name) return rule.group(chip, input);
    }
    return isThermalZone(chip) ? zoneGroup(name) : SensorGroup::other;
}

SensorGroup zoneGroup(std::string_view type) {
    if (containsOneOf(type, {"gpu"})) return SensorGroup::gpu;
    if (containsOneOf(type, {"little", "efficiency"})) return SensorGroup::efficiencyCore;
    if (containsOneOf(type, {"big", "cpu", "core", "cluster"})) return SensorGroup::performanceCore;
    return SensorGroup::other;
}

bool isSuperIO(std::string_view chipName) {
    return chipName.starts_with("nct6") || chipName.starts_with("it8") || chipName.starts_with("f71") ||
           chipName.starts_with("w83");
}

bool isGPUChip(std::string_view chipName) {
    return chipName == "amdgpu" || chipName == "nouveau" || chipName == "xe" || chipName == "i915";
}

} // namespace tarvo::linux_platform
