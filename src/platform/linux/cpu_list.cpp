#include "platform/linux/cpu_list.h"

#include "platform/linux/parse_number.h"

#include <cstdint>

namespace tarvo::linux_platform {
namespace {

bool appendRange(std::string_view range, std::vector<int>& cpus) {
    const auto dash = range.find('-');
    const auto first = parseNumber<std::uint16_t>(range.substr(0, dash));
    const auto last =
        dash == std::string_view::npos ? first : parseNumber<std::uint16_t>(range.substr(dash + 1));
    if (!first || !last || *first > *last) return false;
    for (int cpu = *first; cpu <= *last; ++cpu)
        cpus.push_back(cpu);
    return true;
}

} // namespace

std::optional<std::vector<int>> parseCPUList(std::string_view text) {
    constexpr std::size_t mostCPUs = 65536;
    std::vector<int> cpus;
    while (!text.empty()) {
        const auto comma = text.find(',');
        if (!appendRange(text.substr(0, comma), cpus) || cpus.size() > mostCPUs) return std::nullopt;
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return cpus;
}

} // namespace tarvo::linux_platform
