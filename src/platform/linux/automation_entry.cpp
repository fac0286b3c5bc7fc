#include "platform/linux/automation_entry.h"

#include <algorithm>

namespace tarvo::linux_platform {
namespace {

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && (text.front() == ' ' || text.front() == '\t'))
        text.remove_prefix(1);
    while (!text.empty() && (text.back() == ' ' || text.back() == '\t' || text.back() == '\r'))
        text.remove_suffix(1);
    return text;
}

/// Undoes \s \n \t \r and \\ of a string value; other backslashes stay.
std::string unescaped(std::string_view value) {
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const char next = value[at] == '\\' && at + 1 < value.size() ? value[at + 1] : '\0';
        switch (next) {
        case 's':
            text += ' ';
            break;
        case 'n':
            text += '\n';
            break;
        case 't':
            text += '\t';
            break;
        case 'r':
            text += '\r';
            break;
        case '\\':
            text += '\\';
            break;
        default:
            text += value[at];
            continue;
        }
        ++at;
    }
    return text;
}

/// Splits a command line by the quoting rule of Exec keys: double quotes, and backslashes within them.
/// Empty when a quote is not closed.
std::vector<std::string> words(const std::string& line) {
    std::vector<std::string> found;
    bool inWord = false;
    bool quoted = false;
    std::string word;
    for (std::size_t at = 0; at < line.size(); ++at) {
        const char character = line[at];
        if (quoted && character == '\\' && at + 1 < line.size()) {
            word += line[++at];
        } else if (character == '"') {
            quoted = !quoted;
            inWord = true;
        } else if (!quoted && (character == ' ' || character == '\t' || character == '\n')) {
            if (inWord) found.push_back(std::move(word));
            word.clear();
            inWord = false;
        } else {
            word += character;
            inWord = true;
        }
    }
    if (quoted) return {};
    if (inWord) found.push_back(std::move(word));
    return found;
}

/// Drops %f, %U and the like; %% is a percent sign.
std::string withoutFieldCodes(const std::string& word) {
    std::string text;
    for (std::size_t at = 0; at < word.size(); ++at) {
        if (word[at] != '%') {
            text += word[at];
        } else if (++at < word.size() && word[at] == '%') {
            text += '%';
        }
    }
    return text;
}

std::vector<std::string> commandOf(std::string_view exec) {
    std::vector<std::string> command;
    for (const auto& word : words(unescaped(exec))) {
        auto plain = withoutFieldCodes(word);
        if (!plain.empty() || word.empty()) command.push_back(std::move(plain));
    }
    return command;
}

struct Keys {
    std::optional<std::string> name;
    std::optional<std::string> localizedName;
    std::optional<std::string> exec;
};

Keys keysOf(std::string_view text, std::string_view language) {
    const std::string localizedKey = "Name[" + std::string(language) + "]";
    Keys keys;
    bool inGroup = false;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        const auto line = trimmed(text.substr(0, end));
        text.remove_prefix(std::min(end + 1, text.size()));
        if (line.starts_with('[')) inGroup = line == "[Desktop Entry]";
        const auto equals = line.find('=');
        if (!inGroup || line.starts_with('#') || equals == std::string_view::npos) continue;
        const auto key = trimmed(line.substr(0, equals));
        const auto value = trimmed(line.substr(equals + 1));
        if (key == "Name") keys.name = unescaped(value);
        if (key == localizedKey) keys.localizedName = unescaped(value);
        if (key == "Exec") keys.exec = std::string(value);
    }
    return keys;
}

} // namespace

std::optional<AutomationEntry> parseAutomationEntry(std::string_view text, std::string_view language) {
    auto keys = keysOf(text, language);
    auto& name = keys.localizedName ? keys.localizedName : keys.name;
    if (!name || name->empty() || !keys.exec) return std::nullopt;
    auto command = commandOf(*keys.exec);
    if (command.empty() || command.front().empty()) return std::nullopt;
    return AutomationEntry{std::move(*name), std::move(command)};
}

} // namespace tarvo::linux_platform
