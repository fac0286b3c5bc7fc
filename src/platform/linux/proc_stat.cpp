#include "platform/linux/proc_stat.h"

#include "platform/linux/text_cursor.h"

#include <array>

namespace tarvo::linux_platform {

namespace {

// Guest time follows these columns and is already inside user and nice.
enum Column { user, nice, system, idle, ioWait, irq, softIRQ, steal, columnCount };
constexpr int fewestColumns = ioWait;

bool parseCore(TextCursor& cursor, RawCoreTicks& core) {
    const auto id = cursor.number();
    if (!id || *id > UINT32_MAX) return false;
    std::array<std::uint64_t, columnCount> columns{};
    int count = 0;
    for (; count < columnCount; ++count) {
        const auto value = cursor.number();
        if (!value) break;
        columns[static_cast<std::size_t>(count)] = *value;
    }
    core = {.cpuId = static_cast<std::uint32_t>(*id),
            .user = columns[user],
            .system = columns[system] + columns[irq] + columns[softIRQ] + columns[steal],
            .idle = columns[idle] + columns[ioWait],
            .nice = columns[nice]};
    return count >= fewestColumns;
}

} // namespace

bool parseCoreTicks(std::string_view text, std::vector<RawCoreTicks>& cores) {
    cores.clear();
    TextCursor cursor(text);
    RawCoreTicks core;
    while (cursor.skip("cpu")) {
        const bool isOneCore = !cursor.rest().starts_with(' ');
        if (isOneCore && parseCore(cursor, core)) cores.push_back(core);
        cursor.nextLine();
    }
    if (cursor.atEnd()) return text.ends_with('\n');
    // What is left may be the beginning of a line that was cut.
    return !std::string_view("cpu").starts_with(cursor.rest());
}

} // namespace tarvo::linux_platform
