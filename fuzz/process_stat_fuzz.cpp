#include "platform/linux/process_command.h"
#include "platform/linux/process_stat.h"
#include "platform/utf8.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto stat = tarvo::linux_platform::parseProcessStat(text);
    if (stat && text.find(stat->name) == std::string_view::npos) std::abort();
    const auto name = tarvo::linux_platform::printableName(stat ? stat->name : text);
    if (name.empty() || !tarvo::isUTF8(name) || name.find('\n') != std::string::npos) std::abort();
    const auto path = tarvo::linux_platform::pathInCommandLine(text, "sh");
    if (!path.empty() && path.front() != '/') std::abort();
    return 0;
}
