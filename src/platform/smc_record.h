#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>

/// The wire format of the system management controller's user client.
namespace tarvo {

/// "FNum" as a number: first character in the most significant byte.
constexpr std::uint32_t smcCode(char first, char second, char third, char fourth) {
    const auto byte = [](char character) {
        return static_cast<std::uint32_t>(static_cast<signed char>(character));
    };
    return byte(first) << 24 | byte(second) << 16 | byte(third) << 8 | byte(fourth);
}

/// The same for a text of exactly four characters.
constexpr std::uint32_t smcCode(std::string_view text) {
    return smcCode(text[0], text[1], text[2], text[3]);
}

/// The one selector of the user client; the command code in data8 tells the requests apart.
inline constexpr std::uint32_t smcRequestSelector = 2;

enum class SMCCommand : std::uint8_t { readBytes = 5, keyAtIndex = 8, readKeyInfo = 9 };

/// Exchanged with the controller in both directions, host byte order. Fields that a request does not name are
/// zero.
struct SMCRecord {
    struct Version {
        std::uint8_t major;
        std::uint8_t minor;
        std::uint8_t build;
        std::uint8_t reserved;
        std::uint16_t release;
    };
    struct LimitData {
        std::uint16_t version;
        std::uint16_t length;
        std::uint32_t cpuLimit;
        std::uint32_t gpuLimit;
        std::uint32_t memoryLimit;
    };
    struct KeyInfo {
        std::uint32_t dataSize; ///< bytes
        std::uint32_t dataType; ///< packed type code
        std::uint8_t dataAttributes;
    };

    std::uint32_t key; ///< packed key code
    Version version;
    LimitData limitData;
    KeyInfo keyInfo;
    std::uint8_t result; ///< 0 is success
    std::uint8_t status;
    std::uint8_t data8;   ///< the command
    std::uint32_t data32; ///< the index of keyAtIndex
    std::array<std::uint8_t, 32> bytes;
};

static_assert(std::is_trivially_copyable_v<SMCRecord> && std::is_standard_layout_v<SMCRecord>);
static_assert(sizeof(SMCRecord) == 80);
static_assert(offsetof(SMCRecord, key) == 0);
static_assert(offsetof(SMCRecord, version) == 4 && sizeof(SMCRecord::Version) == 6);
static_assert(offsetof(SMCRecord, version.major) == 4);
static_assert(offsetof(SMCRecord, version.minor) == 5);
static_assert(offsetof(SMCRecord, version.build) == 6);
static_assert(offsetof(SMCRecord, version.reserved) == 7);
static_assert(offsetof(SMCRecord, version.release) == 8);
static_assert(offsetof(SMCRecord, limitData) == 12 && sizeof(SMCRecord::LimitData) == 16);
static_assert(offsetof(SMCRecord, limitData.version) == 12);
static_assert(offsetof(SMCRecord, limitData.length) == 14);
static_assert(offsetof(SMCRecord, limitData.cpuLimit) == 16);
static_assert(offsetof(SMCRecord, limitData.gpuLimit) == 20);
static_assert(offsetof(SMCRecord, limitData.memoryLimit) == 24);
static_assert(offsetof(SMCRecord, keyInfo) == 28 && sizeof(SMCRecord::KeyInfo) == 12);
static_assert(offsetof(SMCRecord, keyInfo.dataSize) == 28);
static_assert(offsetof(SMCRecord, keyInfo.dataType) == 32);
static_assert(offsetof(SMCRecord, keyInfo.dataAttributes) == 36);
static_assert(offsetof(SMCRecord, result) == 40);
static_assert(offsetof(SMCRecord, status) == 41);
static_assert(offsetof(SMCRecord, data8) == 42);
static_assert(offsetof(SMCRecord, data32) == 44);
static_assert(offsetof(SMCRecord, bytes) == 48);

} // namespace tarvo
