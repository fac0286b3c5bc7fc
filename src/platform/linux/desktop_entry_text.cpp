#include "platform/linux/desktop_entry_text.h"

#include <utility>

namespace tarvo::linux_platform {
namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

/// The character that stands for an escape's letter; 0 for a letter that is no escape.
char escaped(char letter) {
    switch (letter) {
    case 's':
        return ' ';
    case 'n':
        return '\n';
    case 't':
        return '\t';
    case 'r':
        return '\r';
    case '\\':
        return '\\';
    default:
        return '\0';
    }
}

/// Splits a command line as the desktops do: double quotes keep blanks, single quotes keep everything, a
/// backslash takes the next character as it is.
class WordSplitter {
public:
    void take(std::string_view line) {
        for (std::size_t at = 0; at < line.size(); ++at) {
            const bool takesNext = line[at] == '\\' && quote_ != '\'' && at + 1 < line.size();
            if (takesNext) {
                add(line[++at]);
            } else {
                takeMark(line[at]);
            }
        }
    }
    std::vector<std::string> words() && {
        return quote_ == '\0' ? std::move(words_) : std::vector<std::string>();
    }

private:
    void takeMark(char character) {
        if (quote_ != '\0' && character == quote_) {
            quote_ = '\0';
        } else if (quote_ == '\0' && (character == '"' || character == '\'')) {
            quote_ = character;
            open();
        } else if (quote_ == '\0' &&
                   (character == '\n' || blanks.find(character) != std::string_view::npos)) {
            isOpen_ = false;
        } else {
            add(character);
        }
    }
    void open() {
        if (!isOpen_) words_.emplace_back();
        isOpen_ = true;
    }
    void add(char character) {
        open();
        words_.back() += character;
    }

    std::vector<std::string> words_;
    bool isOpen_ = false;
    char quote_ = '\0';
};

} // namespace

void readDesktopEntryKeys(std::string_view text,
                          const std::function<void(std::string_view key, std::string_view value)>& use) {
    bool isEntryGroup = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.starts_with('[')) isEntryGroup = line == "[Desktop Entry]";
        const auto equals = line.find('=');
        if (!isEntryGroup || line.starts_with('#') || equals == std::string_view::npos) continue;
        use(trimmed(line.substr(0, equals)), trimmed(line.substr(equals + 1)));
    }
}

std::string desktopEntryString(std::string_view value) {
    std::string text;
    for (std::size_t at = 0; at < value.size(); ++at) {
        const char next = value[at] == '\\' && at + 1 < value.size() ? escaped(value[at + 1]) : '\0';
        text += next == '\0' ? value[at] : next;
        if (next != '\0') ++at;
    }
    return text;
}

std::vector<std::string> execWords(std::string_view value) {
    WordSplitter splitter;
    splitter.take(desktopEntryString(value));
    return std::move(splitter).words();
}

} // namespace tarvo::linux_platform
