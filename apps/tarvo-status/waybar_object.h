#pragma once

#include "core/settings.h"
#include "core/stats_snapshot.h"
#include "localization/app_language.h"

#include <string>

namespace tarvo::status {

/// Appends the object that a custom module of waybar reads: "text" is the combined text, "tooltip" the same
/// facts a line each, "class" the load band: normal, raised or high. `scratch` is memory to work in.
void appendWaybarObject(std::string& out, std::string& scratch, const StatsSnapshot& snapshot,
                        const Settings& settings, AppLanguage language);

} // namespace tarvo::status
