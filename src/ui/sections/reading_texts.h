#pragma once

#include "localization/localization_manager.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tarvo::ui {

// Readings as the sections and panels write them; what is not available is a dash.

/// "%.1f GB"
std::string gigabyteText(double gigabytes);
/// "9.8 / 16 GB"
std::string memoryText(double usedGB, double totalGB);
/// "412 / 994 GB"
std::string diskText(std::optional<double> firstGB, std::optional<double> totalGB);
/// "18.4 W"
std::string wattText(std::optional<double> watts);
/// "1200 RPM"
std::string fanSpeedText(double rpm);
/// "Fan 1": the number of the fan counts from 1.
std::string fanName(std::size_t index, const LocalizationManager& loc);
/// "23 %"
std::string percentText(double percent);
/// "312", or with a unit "91%"
std::string optionalText(std::optional<std::int64_t> number, std::string_view unit = {});
/// "Core 1": counts from 1.
std::string coreName(std::size_t index);

} // namespace tarvo::ui
