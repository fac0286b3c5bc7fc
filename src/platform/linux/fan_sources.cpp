#include "platform/linux/fan_sources.h"

#include "platform/linux/read_file.h"
#include "platform/linux/sensor_group.h"

#include <algorithm>
#include <cstdint>

namespace tarvo::linux_platform {
namespace {

bool isUnused(const HwmonChip& chip, const HwmonInput& input) {
    return isSuperIO(chip.name) && input.label.empty() &&
           readNumber<std::int64_t>(chip.folder + "/" + input.attribute) == 0;
}

} // namespace

std::vector<FanSource> fanSources(const std::vector<HwmonChip>& chips) {
    std::vector<FanSource> fans;
    for (const auto& chip : chips) {
        for (const auto& input : chip.inputs) {
            if (input.kind != HwmonKind::fan || input.hasFault || isUnused(chip, input)) continue;
            fans.push_back({{chip.name, input.label}, chip.folder, input.attribute, isGPUChip(chip.name)});
        }
    }
    std::stable_partition(fans.begin(), fans.end(), [](const FanSource& fan) { return !fan.isGPU; });
    return fans;
}

} // namespace tarvo::linux_platform
