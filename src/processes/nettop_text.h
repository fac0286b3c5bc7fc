#pragma once

#include "core/stats_snapshot.h"

#include <string_view>
#include <vector>

namespace tarvo {

/// The processes in the output of `nettop -P -L 1 -x -J bytes_in,bytes_out`, in its order, one a line below
/// the header, those that moved nothing among them. A label without a dot before its pid and a line without
/// two numbers are left out. Empty when the text is not UTF-8.
std::vector<NetProcInfo> parseNetworkStatisticsText(std::string_view text);

} // namespace tarvo
