#include "ui/sections/sensor_group.h"

#include <array>

namespace tarvo::ui {
namespace {

struct GroupRow {
    std::string_view prefix;
    LKey title;
    Color color;
};

constexpr std::array<GroupRow, 4> groups{{
    {"Tp", {.cs = "Výkonná jádra CPU", .en = "Performance Cores"}, colors::orange},
    {"Te", {.cs = "Úsporná jádra CPU", .en = "Efficiency Cores"}, colors::green},
    {"Tg", {.cs = "GPU", .en = "GPU"}, colors::purple},
    {"", {.cs = "Ostatní senzory", .en = "Other Sensors"}, colors::gray},
}};

// The last row takes every key.
std::size_t groupOf(std::string_view key) {
    std::size_t group = 0;
    while (key.substr(0, groups[group].prefix.size()) != groups[group].prefix)
        ++group;
    return group;
}

} // namespace

std::vector<SensorGroup> sensorGroups(const std::vector<SensorReading>& readings,
                                      const LocalizationManager& loc) {
    std::vector<SensorGroup> all;
    for (const GroupRow& row : groups)
        all.push_back({loc.t(row.title), row.color, {}});
    for (const SensorReading& reading : readings)
        all[groupOf(reading.key)].sensors.push_back(reading);
    std::erase_if(all, [](const SensorGroup& group) { return group.sensors.empty(); });
    return all;
}

} // namespace tarvo::ui
