#pragma once

#include <string_view>

namespace tarvo {

/// Whether dotted version `a` comes after `b`. Pieces that are empty or no decimal integers are left out, so
/// that the later ones move up; a missing piece counts as 0.
bool isNewer(std::string_view a, std::string_view b);

} // namespace tarvo
