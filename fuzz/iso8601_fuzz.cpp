#include "platform/iso8601.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What was read is written in one form, which reads back the same.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto date = tarvo::parseISO8601({reinterpret_cast<const char*>(data), size});
    if (date && tarvo::parseISO8601(tarvo::formatISO8601(*date)) != date) std::abort();
    return 0;
}
