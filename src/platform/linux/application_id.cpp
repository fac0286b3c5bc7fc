#include "platform/linux/application_id.h"

#include <optional>

namespace tarvo::linux_platform {
namespace {

std::optional<int> hexDigit(char digit) {
    if (digit >= '0' && digit <= '9') return digit - '0';
    if (digit >= 'a' && digit <= 'f') return digit - 'a' + 10;
    return std::nullopt;
}

// Unit names hold special characters as \xNN.
std::string unescaped(std::string_view name) {
    std::string plain;
    for (std::size_t index = 0; index < name.size(); ++index) {
        if (name.substr(index, 2) == "\\x" && index + 3 < name.size()) {
            const auto high = hexDigit(name[index + 2]);
            const auto low = hexDigit(name[index + 3]);
            if (high && low) {
                plain.push_back(static_cast<char>(*high * 16 + *low));
                index += 3;
                continue;
            }
        }
        plain.push_back(name[index]);
    }
    return plain;
}

// The last component that is an application's unit: a service or scope whose name begins with "app-".
std::string_view applicationUnit(std::string_view cgroup) {
    std::string_view path = cgroup.substr(0, cgroup.find('\n'));
    while (!path.empty()) {
        const auto slash = path.rfind('/');
        const std::string_view name = slash == std::string_view::npos ? path : path.substr(slash + 1);
        const bool isUnit = name.ends_with(".service") || name.ends_with(".scope");
        if (isUnit && name.starts_with("app-")) return name;
        if (slash == std::string_view::npos) break;
        path = path.substr(0, slash);
    }
    return {};
}

std::string_view withoutRandomPart(std::string_view unit) {
    const bool isScope = unit.ends_with(".scope");
    unit.remove_suffix(unit.size() - unit.rfind('.'));
    const auto end = isScope ? unit.rfind('-') : unit.rfind('@');
    return end == std::string_view::npos ? unit : unit.substr(0, end);
}

} // namespace

std::vector<std::string> applicationIDs(std::string_view cgroup) {
    std::string_view unit = applicationUnit(cgroup);
    if (unit.empty()) return {};
    unit = withoutRandomPart(unit);
    const auto prefix = unit.find('-');
    if (prefix == std::string_view::npos) return {};
    const std::string_view whole = unit.substr(prefix + 1);
    std::vector<std::string> ids;
    // With a launcher's name in front or without one: the unit does not tell.
    if (const auto launcher = whole.find('-'); launcher != std::string_view::npos) {
        ids.push_back(unescaped(whole.substr(launcher + 1)));
    }
    ids.push_back(unescaped(whole));
    std::erase_if(ids, [](const std::string& id) { return id.empty(); });
    return ids;
}

} // namespace tarvo::linux_platform
