#pragma once

#include <string>

namespace tarvo {

/// "1.5 KB/s" for 1536: one decimal, units of 1024 up to GB/s, the same in every locale.
std::string formatBytesPerSecond(double value);

} // namespace tarvo
