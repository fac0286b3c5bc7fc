#include "ui/detail/detail_section.h"

namespace tarvo::ui {
namespace {

struct Row {
    DetailSection section;
    std::string_view identifier;
    std::string_view symbol;
    LKey label;
    Color color;
};

constexpr std::array<Row, allDetailSections.size()> rows{{
    {DetailSection::overview,
     "overview",
     "square.grid.2x2.fill",
     {.cs = "Přehled", .en = "Overview"},
     colors::blue},
    {DetailSection::cpu, "cpu", "cpu.fill", {.cs = "CPU", .en = "CPU"}, colors::blue},
    {DetailSection::memory, "memory", "memorychip.fill", {.cs = "Paměť", .en = "Memory"}, colors::purple},
    {DetailSection::battery,
     "battery",
     "battery.100percent",
     {.cs = "Baterie", .en = "Battery"},
     colors::green},
    {DetailSection::disk, "disk", "internaldrive.fill", {.cs = "Disky", .en = "Disks"}, colors::indigo},
    {DetailSection::network, "network", "network", {.cs = "Síť", .en = "Network"}, colors::teal},
    {DetailSection::bluetooth,
     "bluetooth",
     "dot.radiowaves.left.and.right",
     {.cs = "Bluetooth", .en = "Bluetooth"},
     colors::blue},
    {DetailSection::sensors,
     "sensors",
     "thermometer.medium",
     {.cs = "Senzory", .en = "Sensors"},
     colors::orange},
    {DetailSection::processes,
     "processes",
     "list.bullet.rectangle.fill",
     {.cs = "Procesy", .en = "Processes"},
     colors::pink},
    {DetailSection::history,
     "history",
     "clock.arrow.circlepath",
     {.cs = "Historie", .en = "History"},
     colors::gray},
}};

constexpr bool rowsFollowTheSections() {
    for (std::size_t index = 0; index < rows.size(); ++index) {
        if (rows[index].section != allDetailSections[index]) return false;
        if (static_cast<std::size_t>(allDetailSections[index]) != index) return false;
    }
    return true;
}
static_assert(rowsFollowTheSections());

constexpr const Row& rowOf(DetailSection section) {
    return rows[static_cast<std::size_t>(section)];
}

} // namespace

std::string_view identifier(DetailSection section) {
    return rowOf(section).identifier;
}

std::string_view symbolName(DetailSection section) {
    return rowOf(section).symbol;
}

LKey label(DetailSection section) {
    return rowOf(section).label;
}

Color color(DetailSection section) {
    return rowOf(section).color;
}

} // namespace tarvo::ui
