#pragma once

#include "processes/network_connection.h"

#include <string_view>
#include <vector>

namespace tarvo {

/// The sockets in the output of `lsof -i -n -P`, in its order, one a line below the header. Lines with fewer
/// than eight fields or a second field that is no number are left out. Empty when the text is not UTF-8.
std::vector<NetworkConnection> parseOpenFilesText(std::string_view text);

} // namespace tarvo
