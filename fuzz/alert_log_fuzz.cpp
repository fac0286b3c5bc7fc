#include "history/alert_log_format.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What was read can be written, and reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto entries = tarvo::parseAlertLog({reinterpret_cast<const char*>(data), size});
    if (!entries) return 0;
    const auto json = tarvo::encodeAlertLog(*entries);
    if (!json || tarvo::parseAlertLog(*json) != entries) std::abort();
    return 0;
}
