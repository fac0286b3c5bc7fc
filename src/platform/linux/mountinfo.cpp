#include "platform/linux/mountinfo.h"

#include "platform/linux/text_cursor.h"

#include <optional>

namespace tarvo::linux_platform {

namespace {

// The character that "\ooo" stands for at the beginning of the text.
std::optional<char> escapedCharacter(std::string_view text) {
    constexpr std::size_t length = 4;
    if (text.size() < length || text[0] != '\\' || text[1] > '3') return std::nullopt;
    unsigned value = 0;
    for (const char digit : text.substr(1, length - 1)) {
        if (digit < '0' || digit > '7') return std::nullopt;
        value = value * 8 + static_cast<unsigned>(digit - '0');
    }
    return static_cast<char>(value);
}

// id parent major:minor root point options [optional ...] - type source superOptions
std::optional<Mount> parseMount(TextCursor cursor) {
    if (!cursor.skipFields(3)) return std::nullopt;
    Mount mount;
    mount.root = decodeMountText(cursor.field());
    mount.point = decodeMountText(cursor.field());
    mount.options = cursor.field();
    std::string_view field;
    do {
        field = cursor.field();
        if (field.empty()) return std::nullopt;
    } while (field != "-");
    mount.type = cursor.field();
    mount.source = decodeMountText(cursor.field());
    mount.superOptions = cursor.field();
    if (mount.source.empty() || !mount.point.starts_with('/')) return std::nullopt;
    return mount;
}

} // namespace

std::vector<Mount> parseMountInfo(std::string_view text) {
    std::vector<Mount> mounts;
    for (TextCursor cursor(text); !cursor.atEnd(); cursor.nextLine()) {
        if (auto mount = parseMount(cursor)) mounts.push_back(std::move(*mount));
    }
    return mounts;
}

std::string decodeMountText(std::string_view text) {
    std::string result;
    while (!text.empty()) {
        const auto escaped = escapedCharacter(text);
        result += escaped.value_or(text.front());
        text.remove_prefix(escaped ? 4 : 1);
    }
    return result;
}

bool hasMountOption(std::string_view options, std::string_view option) {
    while (!options.empty()) {
        const auto first = options.substr(0, options.find(','));
        if (first == option) return true;
        options.remove_prefix(first.size() < options.size() ? first.size() + 1 : first.size());
    }
    return false;
}

} // namespace tarvo::linux_platform
