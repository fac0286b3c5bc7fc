#include "platform/linux/proc_net_dev.h"

#include "platform/linux/text_cursor.h"

#include <optional>

namespace tarvo::linux_platform {

namespace {

// Columns of the receiving half that stand between its byte count and that of the sending half.
constexpr int columnsBetween = 7;

// The name ends at the last colon of its field: the name of an alias holds one itself. Old kernels leave no
// blank between the colon and the first number.
std::optional<InterfaceCounters> parseLine(TextCursor& cursor) {
    const auto name = cursor.fieldUpToLast(':');
    if (!name || name->empty() || name->find('/') != std::string_view::npos) return std::nullopt;
    const auto received = cursor.number();
    if (!received || !cursor.skipFields(columnsBetween)) return std::nullopt;
    const auto sent = cursor.number();
    if (!sent) return std::nullopt;
    return InterfaceCounters{*name, *received, *sent};
}

} // namespace

void parseNetDev(std::string_view text, std::vector<InterfaceCounters>& interfaces) {
    interfaces.clear();
    for (TextCursor cursor(text); !cursor.atEnd(); cursor.nextLine()) {
        if (const auto counters = parseLine(cursor)) interfaces.push_back(*counters);
    }
}

} // namespace tarvo::linux_platform
