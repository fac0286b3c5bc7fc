#include "platform/linux/desktop_entry.h"

#include "platform/linux/desktop_entry_text.h"
#include "platform/linux/folder.h"

namespace tarvo::linux_platform {

std::string programOfExec(std::string_view exec) {
    bool isEnvironment = false;
    for (const std::string& word : execWords(exec)) {
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
    bool isApplication = false;
    readDesktopEntryKeys(text, [&](std::string_view key, std::string_view value) {
        if (key == "Type") isApplication = value == "Application";
        if (key == "Icon") entry.icon = value;
        if (key == "Exec") entry.program = programOfExec(value);
    });
    if (!isApplication || entry.icon.empty()) return std::nullopt;
    return entry;
}

} // namespace tarvo::linux_platform
