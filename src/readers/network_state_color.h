#pragma once

#include <string_view>

namespace tarvo {

/// Colour that a connection list gives to the state of a connection.
enum class NetworkStateColor { green, blue, orange, purple, grey };

/// The colour of a TCP state's name in either case; grey for any other text.
NetworkStateColor networkStateColor(std::string_view state);

} // namespace tarvo
