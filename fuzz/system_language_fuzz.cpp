// The locale variables, one a line, hold any bytes that a user or a session manager puts there.
#include "platform/linux/system_language.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view text(reinterpret_cast<const char*>(data), size);
    std::map<std::string, std::string> variables;
    for (const char* name : {"LANGUAGE", "LC_ALL", "LC_MESSAGES", "LANG"}) {
        const auto line = text.substr(0, text.find('\n'));
        variables[name] = line;
        text.remove_prefix(std::min(line.size() + 1, text.size()));
    }
    const auto code = tarvo::linux_platform::systemLanguageCode(
        [&](const std::string& name) { return std::optional(variables.at(name)); });
    if (code && (code->empty() || code->find_first_of("_.@") != std::string::npos)) std::abort();
    return 0;
}
