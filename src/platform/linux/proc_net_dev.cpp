#include "platform/linux/proc_net_dev.h"

#include "platform/linux/text_cursor.h"

#include <optional>

namespace tarvo::linux_platform {

namespace {

// Columns of the receiving half that stand between its byte count and that of the sending half.
constexpr int columnsBetween = 7;

std::string_view trimmed(std::string_view name) {
    while (name.starts_with(' '))
        name.remove_prefix(1);
    return name;
}

// The name ends at the last colon of its line: the name of an alias holds one itself.
std::optional<InterfaceCounters> parseLine(std::string_view line) {
    const auto colon = line.rfind(':');
    if (colon == std::string_view::npos) return std::nullopt;
    const auto name = trimmed(line.substr(0, colon));
    if (name.empty() || name.find_first_of("/ ") != std::string_view::npos) return std::nullopt;

    TextCursor cursor(line.substr(colon + 1));
    const auto received = cursor.number();
    if (!received || !cursor.skipFields(columnsBetween)) return std::nullopt;
    const auto sent = cursor.number();
    if (!sent) return std::nullopt;
    return InterfaceCounters{name, *received, *sent};
}

} // namespace

void parseNetDev(std::string_view text, std::vector<InterfaceCounters>& interfaces) {
    interfaces.clear();
    while (!text.empty()) {
        const auto line = text.substr(0, text.find('\n'));
        if (const auto counters = parseLine(line)) interfaces.push_back(*counters);
        text.remove_prefix(line.size() < text.size() ? line.size() + 1 : line.size());
    }
}

} // namespace tarvo::linux_platform
