#include "processes/ps_text.h"

#include "platform/utf8.h"
#include "processes/command_name.h"
#include "processes/text_fields.h"

#include <optional>
#include <string>

namespace tarvo {

namespace {

std::optional<ProcInfo> parseLine(std::string_view line) {
    auto rest = trimBlanks(line);
    const auto pid = wholeNumber<std::int32_t>(takeField(rest));
    const auto cpu = wholeNumber<double>(takeField(rest));
    const auto memPercent = wholeNumber<double>(takeField(rest));
    // The rest of the line is one field, its blanks included: paths of commands may hold blanks.
    const auto command = withoutLeadingSpaces(rest);
    if (!pid || !cpu || !memPercent || command.empty()) return std::nullopt;
    return ProcInfo{*pid, std::string(lastPathComponent(command)), *cpu, *memPercent};
}

} // namespace

std::vector<ProcInfo> parseProcessStatusText(std::string_view text, std::int64_t limit) {
    std::vector<ProcInfo> processes;
    if (!isUTF8(text)) return processes;
    forEachLine(text, [&](std::string_view line) {
        if (auto process = parseLine(line)) {
            processes.push_back(std::move(*process));
            if (static_cast<std::int64_t>(processes.size()) >= limit) return false;
        }
        return true;
    });
    return processes;
}

} // namespace tarvo
