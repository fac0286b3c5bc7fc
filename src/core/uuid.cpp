#include "core/uuid.h"

#include <cstring>
#include <random>

namespace tarvo {

namespace {

std::mt19937_64 seededGenerator() {
    std::random_device device;
    std::seed_seq seeds{device(), device(), device(), device(), device(), device(), device(), device()};
    return std::mt19937_64(seeds);
}

} // namespace

UUID UUID::random() {
    // One generator a thread: a list of connections takes thousands at once, and asking the kernel for each
    // would cost more than the list.
    thread_local auto generator = seededGenerator();
    const std::array<std::uint64_t, 2> words{generator(), generator()};
    UUID result;
    static_assert(sizeof(words) == sizeof(result.bytes));
    std::memcpy(result.bytes.data(), words.data(), sizeof(words));
    result.bytes[6] = static_cast<std::uint8_t>((result.bytes[6] & 0x0FU) | 0x40U);
    result.bytes[8] = static_cast<std::uint8_t>((result.bytes[8] & 0x3FU) | 0x80U);
    return result;
}

} // namespace tarvo
