#pragma once

#include <cstdint>
#include <string>

namespace tarvo {

/// "45 min", from an hour on "2:15"; the same in every language.
std::string formatMinutes(std::int64_t minutes);

} // namespace tarvo
