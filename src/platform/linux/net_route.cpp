#include "platform/linux/net_route.h"

#include "platform/linux/parse_number.h"
#include "platform/linux/text_cursor.h"

#include <net/route.h>

#include <optional>

namespace tarvo::linux_platform {

namespace {

// Iface Destination Gateway Flags RefCnt Use Metric Mask ...
std::optional<DefaultRoute> parseRoute(TextCursor cursor) {
    DefaultRoute route;
    route.interfaceName = cursor.field();
    const auto destination = parseHexadecimal<std::uint32_t>(cursor.field());
    cursor.field();
    const auto flags = parseHexadecimal<unsigned>(cursor.field());
    cursor.skipFields(2);
    const auto metric = parseNumber<std::uint32_t>(cursor.field());
    const auto mask = parseHexadecimal<std::uint32_t>(cursor.field());
    if (destination != 0U || mask != 0U || !flags || !metric) return std::nullopt;
    if ((*flags & RTF_UP) == 0 || (*flags & RTF_REJECT) != 0) return std::nullopt;
    route.metric = *metric;
    return route;
}

} // namespace

std::vector<DefaultRoute> parseDefaultRoutes(std::string_view text) {
    std::vector<DefaultRoute> routes;
    for (TextCursor cursor(text); !cursor.atEnd(); cursor.nextLine()) {
        if (auto route = parseRoute(cursor)) routes.push_back(std::move(*route));
    }
    return routes;
}

} // namespace tarvo::linux_platform
