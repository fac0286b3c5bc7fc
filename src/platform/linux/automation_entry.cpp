#include "platform/linux/automation_entry.h"

#include "platform/linux/desktop_entry_text.h"

namespace tarvo::linux_platform {
namespace {

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
    for (const auto& word : execWords(exec)) {
        auto plain = withoutFieldCodes(word);
        if (!plain.empty() || word.empty()) command.push_back(std::move(plain));
    }
    return command;
}

} // namespace

std::optional<AutomationEntry> parseAutomationEntry(std::string_view text, std::string_view language) {
    const std::string localizedKey = "Name[" + std::string(language) + "]";
    std::string name;
    std::string localizedName;
    std::vector<std::string> command;
    readDesktopEntryKeys(text, [&](std::string_view key, std::string_view value) {
        if (key == "Name") name = desktopEntryString(value);
        if (key == localizedKey) localizedName = desktopEntryString(value);
        if (key == "Exec") command = commandOf(value);
    });
    if (!localizedName.empty()) name = std::move(localizedName);
    if (name.empty() || command.empty() || command.front().empty()) return std::nullopt;
    return AutomationEntry{std::move(name), std::move(command)};
}

} // namespace tarvo::linux_platform
