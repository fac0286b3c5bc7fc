#include "sensors/random_uuid.h"

#include <fmt/format.h>

#include <cstdint>
#include <random>

namespace tarvo {

std::string randomUUID() {
    std::random_device device;
    const auto word = [&device] { return static_cast<std::uint32_t>(device()); };
    const auto low = word();
    const auto middle = word();
    const auto high = word();
    const auto last = word();
    return fmt::format("{:08X}-{:04X}-4{:03X}-{:X}{:03X}-{:04X}{:08X}", low, middle >> 16, middle & 0xFFF,
                       8 + (high >> 30), high >> 16 & 0xFFF, high & 0xFFFF, last);
}

} // namespace tarvo
