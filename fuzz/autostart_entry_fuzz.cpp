// Any text is judged without a fault, and no path can turn the entry that is written for it off.
#include "platform/linux/autostart_entry.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    static_cast<void>(tarvo::linux_platform::isFollowedAutostartEntry(text));
    if (text.find('\n') != std::string_view::npos) return 0;
    const std::string entry = tarvo::linux_platform::autostartEntry(text);
    if (!tarvo::linux_platform::isFollowedAutostartEntry(entry)) std::abort();
    return 0;
}
