#include "platform/linux/autostart_entry.h"

#include <fmt/format.h>

namespace tarvo::linux_platform {
namespace {

constexpr std::string_view blanks = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::string withBackslashBefore(std::string_view characters, std::string_view text) {
    std::string escaped;
    for (const char character : text) {
        if (characters.find(character) != std::string_view::npos) escaped += '\\';
        escaped += character;
    }
    return escaped;
}

/// One word of an Exec value: quoted as a word, its percent signs no field codes, and the whole a string
/// value.
std::string execWord(std::string_view word) {
    std::string doubled;
    for (const char character : word)
        doubled.append(character == '%' ? 2 : 1, character);
    return withBackslashBefore("\\", fmt::format("\"{}\"", withBackslashBefore("\"`$\\", doubled)));
}

} // namespace

std::string autostartEntry(std::string_view program) {
    return fmt::format("[Desktop Entry]\n"
                       "Type=Application\n"
                       "Name=Tarvo\n"
                       "Icon=tarvo\n"
                       "Exec={}\n"
                       "TryExec={}\n"
                       "X-GNOME-Autostart-enabled=true\n",
                       execWord(program), withBackslashBefore("\\", program));
}

bool isFollowedAutostartEntry(std::string_view text) {
    bool isEntryGroup = false;
    bool startsSomething = false;
    bool isTurnedOff = false;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const std::string_view line = trimmed(text.substr(0, end));
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
        if (line.starts_with('[')) isEntryGroup = line == "[Desktop Entry]";
        const auto equals = line.find('=');
        if (!isEntryGroup || line.starts_with('#') || equals == std::string_view::npos) continue;
        const std::string_view key = trimmed(line.substr(0, equals));
        const std::string_view value = trimmed(line.substr(equals + 1));
        if (key == "Exec") startsSomething = !value.empty();
        if (key == "Hidden" && value == "true") isTurnedOff = true;
        if (key == "X-GNOME-Autostart-enabled" && value == "false") isTurnedOff = true;
    }
    return startsSomething && !isTurnedOff;
}

} // namespace tarvo::linux_platform
