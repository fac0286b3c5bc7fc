#pragma once

#include "core/stats_snapshot.h"

#include <string>

namespace tarvo::status {

/// Appends the snapshot as one JSON object. The keys are the field names in order; absent values are left
/// out, and so is a number that is not finite (in a list it is null, so that the others keep their places).
void appendSnapshotJSON(std::string& out, const StatsSnapshot& snapshot);

} // namespace tarvo::status
