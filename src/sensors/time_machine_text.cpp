#include "sensors/time_machine_text.h"

#include "platform/parse_double.h"

namespace tarvo {
namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r\n\v\f";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

} // namespace

bool backupIsRunning(std::string_view status) {
    return status.find("Running = 1") != std::string_view::npos;
}

std::optional<double> backupPercent(std::string_view status) {
    constexpr std::string_view marker = "Percent = \"";
    const auto found = status.find(marker);
    if (found == std::string_view::npos) return std::nullopt;
    const auto start = found + marker.size();
    const auto end = status.find('"', start);
    if (end == std::string_view::npos) return std::nullopt;
    const auto fraction = parseDouble(status.substr(start, end - start));
    return fraction && *fraction >= 0 ? std::optional(*fraction * 100) : std::nullopt;
}

std::optional<std::string_view> latestBackupName(std::string_view output) {
    auto path = trimmed(output);
    if (path.empty() || path.front() != '/') return std::nullopt;
    while (path.size() > 1 && path.back() == '/')
        path.remove_suffix(1);
    return path.substr(path.rfind('/') + 1);
}

} // namespace tarvo
