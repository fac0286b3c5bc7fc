// A preference file is read, written and read again: what it says must not change on the way.
#include "platform/linux/preference_document.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo::linux_platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto document = parsePreferences(text);
    if (!document) return 0;
    const auto again = parsePreferences(formatPreferences(*document));
    if (!again || *again != *document) std::abort();
    return 0;
}
