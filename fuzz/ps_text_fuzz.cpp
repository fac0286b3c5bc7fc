#include "processes/ps_text.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto all = tarvo::parseProcessStatusText(text, 1'000'000);
    for (const auto& process : all) {
        if (!std::isfinite(process.cpu) || !std::isfinite(process.memPercent)) std::abort();
        if (process.name.find_first_of("/\n") != std::string::npos) std::abort();
    }
    // A limit cuts the list and changes nothing else.
    for (const std::int64_t limit : {-1, 0, 1, 3}) {
        const auto some = tarvo::parseProcessStatusText(text, limit);
        if (some.size() > static_cast<std::size_t>(limit < 1 ? 1 : limit) || some.size() > all.size())
            std::abort();
        for (std::size_t i = 0; i < some.size(); ++i) {
            if (some[i] != all[i]) std::abort();
        }
    }
    return 0;
}
