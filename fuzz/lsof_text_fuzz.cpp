#include "processes/lsof_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const auto& connection : tarvo::parseOpenFilesText(text)) {
        if (connection.process.empty() || connection.proto_.empty()) std::abort();
        if (connection.localAddress.find("->") != std::string::npos) std::abort();
        if (connection.state.find('(') != std::string::npos) std::abort();
    }
    return 0;
}
