#pragma once

#include "core/settings.h"
#include "core/stats_snapshot.h"
#include "localization/localization_manager.h"
#include "options.h"

#include <string>

namespace tarvo::status {

/// Writes the snapshot's line over `line`, its line feed included.
void writeLine(std::string& line, OutputFormat format, const StatsSnapshot& snapshot,
               const Settings& settings, const LocalizationManager& localization);

} // namespace tarvo::status
