// Desktop files and control-group texts of any content are read without a fault.
#include "platform/linux/application_id.h"
#include "platform/linux/desktop_entry.h"
#include "platform/linux/desktop_entry_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto entry = tarvo::linux_platform::parseDesktopEntry(text);
    if (entry && entry->icon.empty()) std::abort();
    if (entry && entry->program.find('/') != std::string::npos) std::abort();
    if (tarvo::linux_platform::desktopEntryString(text).size() > size) std::abort();
    std::size_t letters = 0;
    for (const std::string& word : tarvo::linux_platform::execWords(text))
        letters += word.size();
    if (letters > size) std::abort();
    for (const std::string& id : tarvo::linux_platform::applicationIDs(text)) {
        if (id.empty()) std::abort();
    }
    return 0;
}
