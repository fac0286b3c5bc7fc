#include "platform/linux/temperature_sources.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <algorithm>
#include <climits>
#include <optional>
#include <tuple>

namespace tarvo::linux_platform {
namespace {

/// A source with what it is sorted by.
struct Placed {
    int rank;
    int cpu;
    TemperatureSource source;
};

/// "coretemp.1" gives package 1.
std::optional<int> packageOf(const HwmonChip& chip) {
    const auto device = lastComponent(chip.devicePath);
    const auto dot = device.rfind('.');
    return dot == std::string_view::npos ? std::nullopt : parseNumber<int>(device.substr(dot + 1));
}

/// The first logical processor of the physical core that "Core 4" of a package names; null when it is not
/// known.
const CPUCore* coreOf(const HwmonChip& chip, const HwmonInput& input, const std::vector<CPUCore>& cores) {
    constexpr std::string_view beginning = "Core ";
    if (chip.name != "coretemp" || !input.label.starts_with(beginning)) return nullptr;
    const auto core = parseNumber<int>(std::string_view(input.label).substr(beginning.size()));
    const auto package = packageOf(chip).value_or(0);
    const auto found = std::find_if(cores.begin(), cores.end(), [&](const CPUCore& candidate) {
        return candidate.package == package && candidate.core == core;
    });
    return found == cores.end() ? nullptr : &*found;
}

bool isUnconnected(const HwmonChip& chip, const HwmonInput& input) {
    constexpr std::int64_t highest = 120'000;
    if (!isSuperIO(chip.name)) return false;
    const auto millidegrees = readNumber<std::int64_t>(chip.folder + "/" + input.attribute);
    return millidegrees && (*millidegrees < 0 || *millidegrees >= highest);
}

int rankOf(SensorGroup group) {
    switch (group) {
    case SensorGroup::performanceCore:
        return 0;
    case SensorGroup::efficiencyCore:
        return 1;
    case SensorGroup::gpu:
        return 2;
    default:
        return 3;
    }
}

Placed place(int cpu, TemperatureSource source) {
    return {rankOf(source.group), cpu, std::move(source)};
}

void addChip(const HwmonChip& chip, const std::vector<CPUCore>& cores, std::vector<Placed>& placed) {
    for (const auto& input : chip.inputs) {
        const bool isReading = input.kind == HwmonKind::temperature && input.attribute.ends_with("_input");
        if (!isReading || input.hasFault || isUnconnected(chip, input)) continue;
        auto group = temperatureGroup(chip, input);
        const auto* const core = coreOf(chip, input, cores);
        if (core && core->isEfficient) group = SensorGroup::efficiencyCore;
        placed.push_back(
            place(core ? core->cpu : INT_MAX,
                  {group, {chip.name, input.label}, chip.folder, input.attribute, isGPUChip(chip.name)}));
    }
}

} // namespace

std::vector<TemperatureSource> temperatureSources(const std::vector<HwmonChip>& chips,
                                                  const std::vector<ThermalZone>& zones,
                                                  const std::vector<CPUCore>& cores) {
    std::vector<Placed> placed;
    for (const auto& chip : chips)
        addChip(chip, cores, placed);
    const bool hasCoreTemperatures =
        std::any_of(chips.begin(), chips.end(), [](const auto& chip) { return chip.name == "coretemp"; });
    for (const auto& zone : zones) {
        if (zone.type == "x86_pkg_temp" && hasCoreTemperatures) continue;
        placed.push_back(place(INT_MAX, {zoneGroup(zone.type), {zone.type, ""}, zone.folder, "temp", false}));
    }
    std::stable_sort(placed.begin(), placed.end(), [](const Placed& a, const Placed& b) {
        return std::tie(a.rank, a.cpu) < std::tie(b.rank, b.cpu);
    });
    std::vector<TemperatureSource> sources;
    sources.reserve(placed.size());
    for (auto& item : placed)
        sources.push_back(std::move(item.source));
    return sources;
}

} // namespace tarvo::linux_platform
