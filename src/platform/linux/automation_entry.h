#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// What a desktop entry file says of an automation (freedesktop.org desktop entry specification).
struct AutomationEntry {
    std::string name;                 ///< localized Name, escapes undone
    std::vector<std::string> command; ///< Exec, quoting undone, field codes left out
    bool operator==(const AutomationEntry&) const = default;
};

/// The [Desktop Entry] group of the text. Absent without a Name or a usable Exec. `language` is the code
/// whose Name[code] is preferred, e.g. "cs".
std::optional<AutomationEntry> parseAutomationEntry(std::string_view text, std::string_view language);

} // namespace tarvo::linux_platform
