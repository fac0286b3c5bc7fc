#include "sensors/format_minutes.h"

#include <fmt/format.h>

namespace tarvo {

std::string formatMinutes(std::int64_t minutes) {
    if (minutes < 60) return fmt::format("{} min", minutes);
    return fmt::format("{}:{:02}", minutes / 60, minutes % 60);
}

} // namespace tarvo
