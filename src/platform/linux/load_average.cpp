#include "platform/linux/load_average.h"

#include "platform/linux/parse_number.h"
#include "platform/linux/text_cursor.h"

#include <cmath>

namespace tarvo::linux_platform {

std::optional<std::array<double, 3>> parseLoadAverages(std::string_view text) {
    TextCursor cursor(text);
    std::array<double, 3> loads{};
    for (auto& load : loads) {
        const auto value = parseNumber<double>(cursor.field());
        if (!value || !std::isfinite(*value) || *value < 0) return std::nullopt;
        load = *value;
    }
    return loads;
}

} // namespace tarvo::linux_platform
