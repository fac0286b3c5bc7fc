#include "platform/linux/desktop_entry.h"

#include "platform/linux/folder.h"

#include <vector>

namespace tarvo::linux_platform {
namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// The words of a command line: blanks separate them, double quotes keep blanks, a backslash takes the next
// character as it is.
std::vector<std::string> words(std::string_view line) {
    std::vector<std::string> found;
    bool isQuoted = false;
    bool isOpen = false;
    for (std::size_t index = 0; index < line.size(); ++index) {
        char character = line[index];
        const bool isBlank = blanks.find(character) != std::string_view::npos;
        if (isBlank && !isQuoted) {
            isOpen = false;
            continue;
        }
        if (!isOpen) found.emplace_back();
        isOpen = true;
        if (character == '"') {
            isQuoted = !isQuoted;
            continue;
        }
        if (character == '\\' && index + 1 < line.size()) character = line[++index];
        found.back().push_back(character);
    }
    return found;
}

} // namespace

std::string programOfExec(std::string_view exec) {
    bool isEnvironment = false;
    for (const std::string& word : words(exec)) {
        const std::string_view name = lastComponent(word);
        if (name == "env" && !isEnvironment) {
            isEnvironment = true;
            continue;
        }
        const bool isOption = !word.empty() && word.front() == '-';
        if (isEnvironment && (isOption || word.find('=') != std::string::npos)) continue;
        return std::string(name);
    }
    return {};
}

std::optional<DesktopEntry> parseDesktopEntry(std::string_view text) {
    DesktopEntry entry;
    bool isEntryGroup = false;
    bool isApplication = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.starts_with('[')) isEntryGroup = line == "[Desktop Entry]";
        const auto equals = line.find('=');
        if (!isEntryGroup || line.starts_with('#') || equals == std::string_view::npos) continue;
        const std::string_view key = trimmed(line.substr(0, equals));
        const std::string_view value = trimmed(line.substr(equals + 1));
        if (key == "Type") isApplication = value == "Application";
        if (key == "Icon") entry.icon = value;
        if (key == "Exec") entry.program = programOfExec(value);
    }
    if (!isApplication || entry.icon.empty()) return std::nullopt;
    return entry;
}

} // namespace tarvo::linux_platform
