#include "platform/linux/automation_entry.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto entry = tarvo::linux_platform::parseAutomationEntry(text, "cs");
    if (entry && (entry->name.empty() || entry->command.empty() || entry->command.front().empty()))
        std::abort();
    return 0;
}
