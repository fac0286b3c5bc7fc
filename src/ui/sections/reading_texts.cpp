#include "ui/sections/reading_texts.h"

#include "ui/cards/card.h"

#include <fmt/format.h>

namespace tarvo::ui {

std::string gigabyteText(double gigabytes) {
    return fmt::format("{:.1f} GB", gigabytes);
}

std::string memoryText(double usedGB, double totalGB) {
    return fmt::format("{:.1f} / {:.0f} GB", usedGB, totalGB);
}

std::string diskText(std::optional<double> firstGB, std::optional<double> totalGB) {
    if (!firstGB || !totalGB) return std::string(unavailable);
    return fmt::format("{:.0f} / {:.0f} GB", *firstGB, *totalGB);
}

std::string wattText(std::optional<double> watts) {
    return watts ? fmt::format("{:.1f} W", *watts) : std::string(unavailable);
}

std::string fanSpeedText(double rpm) {
    return fmt::format("{:.0f} RPM", rpm);
}

std::string fanName(std::size_t index, const LocalizationManager& loc) {
    return loc.t({.cs = "Ventilátor ", .en = "Fan "}) + std::to_string(index + 1);
}

std::string percentText(double percent) {
    return fmt::format("{:.0f} %", percent);
}

std::string optionalText(std::optional<std::int64_t> number, std::string_view unit) {
    return number ? fmt::format("{}{}", *number, unit) : std::string(unavailable);
}

std::string coreName(std::size_t index) {
    return "Core " + std::to_string(index + 1);
}

} // namespace tarvo::ui
