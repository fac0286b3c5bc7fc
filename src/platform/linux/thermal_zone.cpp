#include "platform/linux/thermal_zone.h"

#include "platform/linux/folder.h"
#include "platform/linux/read_file.h"

#include <algorithm>
#include <string_view>
#include <tuple>

namespace tarvo::linux_platform {
namespace {

constexpr std::string_view zonePrefix = "thermal_zone";

bool isListedAsChip(const std::string& folder) {
    const auto entries = folderEntries(folder);
    return std::any_of(entries.begin(), entries.end(),
                       [](const auto& name) { return name.starts_with("hwmon"); });
}

} // namespace

std::vector<ThermalZone> readThermalZones(const Root& root) {
    const auto base = root.path("/sys/class/thermal");
    std::vector<ThermalZone> zones;
    for (const auto& name : folderEntries(base)) {
        if (!name.starts_with(zonePrefix)) continue;
        const auto number = parseNumber<int>(std::string_view(name).substr(zonePrefix.size()));
        const auto folder = base + "/" + name;
        auto type = readAttribute(folder + "/type");
        if (number && type && !isListedAsChip(folder)) zones.push_back({std::move(*type), *number, folder});
    }
    std::sort(zones.begin(), zones.end(), [](const auto& a, const auto& b) {
        return std::tie(a.type, a.number) < std::tie(b.type, b.number);
    });
    return zones;
}

} // namespace tarvo::linux_platform
