#include "platform/linux/autostart_entry.h"

#include "platform/linux/desktop_entry_text.h"

#include <fmt/format.h>

namespace tarvo::linux_platform {
namespace {

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
    bool startsSomething = false;
    bool isTurnedOff = false;
    readDesktopEntryKeys(text, [&](std::string_view key, std::string_view value) {
        if (key == "Exec") startsSomething = !value.empty();
        if (key == "Hidden" && value == "true") isTurnedOff = true;
        if (key == "X-GNOME-Autostart-enabled" && value == "false") isTurnedOff = true;
    });
    return startsSomething && !isTurnedOff;
}

} // namespace tarvo::linux_platform
