#include "readers/format_bytes_per_second.h"

#include <fmt/format.h>

#include <array>
#include <string_view>

namespace tarvo {

std::string formatBytesPerSecond(double value) {
    constexpr std::array<std::string_view, 4> units{"B/s", "KB/s", "MB/s", "GB/s"};
    double divisor = 1;
    std::size_t index = 0;
    while (index + 1 < units.size() && !(value / divisor < 1024)) {
        divisor *= 1024;
        ++index;
    }
    return fmt::format("{:.1f} {}", value / divisor, units[index]);
}

} // namespace tarvo
