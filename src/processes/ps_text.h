#pragma once

#include "core/stats_snapshot.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tarvo {

/// The processes in the output of `ps -A -o pid=,pcpu=,pmem=,comm=`, in its order. Lines that do not hold
/// four fields of the right kind are left out; reading stops as soon as the list holds `limit` records, which
/// is looked at after each record: a limit of 0 or less still gives one. Empty when the text is not UTF-8.
std::vector<ProcInfo> parseProcessStatusText(std::string_view text, std::int64_t limit);

} // namespace tarvo
