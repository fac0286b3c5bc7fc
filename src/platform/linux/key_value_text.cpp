#include "platform/linux/key_value_text.h"

namespace tarvo::linux_platform {

namespace {

std::string_view trimmed(std::string_view text) {
    constexpr std::string_view blanks = " \t\r";
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string_view takeLine(std::string_view& text) {
    const auto end = text.find('\n');
    const auto line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    return line;
}

} // namespace

std::map<std::string, std::string, std::less<>> parseKeyValues(std::string_view text,
                                                               std::string_view section) {
    std::map<std::string, std::string, std::less<>> values;
    bool isInSection = section.empty();
    while (!text.empty()) {
        const auto line = trimmed(takeLine(text));
        if (line.starts_with('[') && line.ends_with(']')) {
            isInSection = section.empty() || line.substr(1, line.size() - 2) == section;
            continue;
        }
        const auto equals = line.find('=');
        if (!isInSection || equals == std::string_view::npos || line.starts_with('#')) continue;
        values.insert_or_assign(std::string(trimmed(line.substr(0, equals))),
                                std::string(trimmed(line.substr(equals + 1))));
    }
    return values;
}

} // namespace tarvo::linux_platform
