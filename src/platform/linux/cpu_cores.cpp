#include "platform/linux/cpu_cores.h"

#include "platform/linux/cpu_list.h"
#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <fmt/format.h>

#include <algorithm>

namespace tarvo::linux_platform {
namespace {

constexpr double weakCapacityShare = 0.80;
constexpr double weakFrequencyShare = 0.75;

using Figure = std::optional<double> CoreStrength::*;

/// Absent when a core lacks the figure.
std::optional<std::vector<bool>> weakerThan(double share, Figure figure,
                                            const std::vector<CoreStrength>& cores) {
    double strongest = 0;
    for (const auto& core : cores) {
        if (!(core.*figure)) return std::nullopt;
        strongest = std::max(strongest, *(core.*figure));
    }
    std::vector<bool> weak;
    weak.reserve(cores.size());
    for (const auto& core : cores)
        weak.push_back(*(core.*figure) < share * strongest);
    return weak;
}

std::vector<int> cpuNumbers(const std::string& folder) {
    std::vector<int> numbers;
    for (const auto& name : folderEntries(folder)) {
        if (!name.starts_with("cpu")) continue;
        const auto number = parseNumber<int>(std::string_view(name).substr(3));
        if (number && *number >= 0) numbers.push_back(*number);
    }
    std::sort(numbers.begin(), numbers.end());
    return numbers;
}

std::optional<std::vector<int>> listedEfficientCPUs(const Root& root) {
    const auto list = readAttribute(root.path("/sys/devices/cpu_atom/cpus"));
    if (!list || !pathExists(root.path("/sys/devices/cpu_core/cpus"))) return std::nullopt;
    return parseCPUList(*list);
}

void markEfficient(const Root& root, const std::string& folder, std::vector<CPUCore>& cores) {
    if (const auto listed = listedEfficientCPUs(root)) {
        for (auto& core : cores)
            core.isEfficient = std::find(listed->begin(), listed->end(), core.cpu) != listed->end();
        return;
    }
    std::vector<CoreStrength> strengths;
    for (const auto& core : cores) {
        const auto cpu = fmt::format("{}/cpu{}", folder, core.cpu);
        strengths.push_back({readNumber<double>(cpu + "/cpu_capacity"),
                             readNumber<double>(cpu + "/cpufreq/cpuinfo_max_freq")});
    }
    const auto weak = weakCores(strengths);
    for (std::size_t i = 0; i < cores.size(); ++i)
        cores[i].isEfficient = weak[i];
}

} // namespace

std::vector<bool> weakCores(const std::vector<CoreStrength>& cores) {
    if (auto weak = weakerThan(weakCapacityShare, &CoreStrength::capacity, cores);
        weak && std::find(weak->begin(), weak->end(), true) != weak->end()) {
        return *weak;
    }
    return weakerThan(weakFrequencyShare, &CoreStrength::maximumFrequency, cores)
        .value_or(std::vector<bool>(cores.size(), false));
}

std::vector<CPUCore> readCPUCores(const Root& root) {
    const auto folder = root.path("/sys/devices/system/cpu");
    std::vector<CPUCore> cores;
    for (const int cpu : cpuNumbers(folder)) {
        const auto topology = fmt::format("{}/cpu{}/topology/", folder, cpu);
        const auto package = readNumber<int>(topology + "physical_package_id");
        const auto core = readNumber<int>(topology + "core_id");
        if (package && core) cores.push_back({cpu, *package, *core});
    }
    markEfficient(root, folder, cores);
    return cores;
}

} // namespace tarvo::linux_platform
