#include "history/history_format.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What was read can be written, and reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto samples = tarvo::parseHistory(std::string(reinterpret_cast<const char*>(data), size));
    if (!samples) return 0;
    std::string json = "[";
    for (const auto& sample : *samples) {
        if (json.size() > 1) json += ',';
        if (!tarvo::appendHistorySample(json, sample)) std::abort();
    }
    if (tarvo::parseHistory(json + ']') != samples) std::abort();
    return 0;
}
