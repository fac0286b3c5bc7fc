// What names an automation: a desktop entry, and the list that a listing tool prints.

#include "actions/shortcuts_integration.h"
#include "platform/linux/automation_entry.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto entry = tarvo::linux_platform::parseAutomationEntry(text, "cs");
    if (entry && (entry->name.empty() || entry->command.empty() || entry->command.front().empty()))
        std::abort();
    for (const auto& name : tarvo::parseShortcutNames(text)) {
        if (name.empty() || name.find('\n') != std::string::npos) std::abort();
    }
    return 0;
}
