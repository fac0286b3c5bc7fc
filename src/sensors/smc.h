#pragma once

#include "platform/smc_user_client.h"

#include <cstdint>
#include <memory>

/// One key of the system management controller at a time, by its four-character name, as raw bytes with a
/// type code. Open and close happen while no request runs; requests may come from any thread.
namespace tarvo {

struct CSMCReadResult {
    std::uint32_t key;       ///< packed, first character in the most significant byte
    char dataType[5];        ///< "sp78", "flt ", ...; four characters and NUL
    std::uint32_t dataSize;  ///< valid bytes, 1 to 32
    unsigned char bytes[32]; ///< as delivered; zero past dataSize
    std::int32_t success;    ///< 1; 0 when the reading failed, and then all else is zero too
};

/// What csmc_key_count answers on any failure: -1 as a signed number.
inline constexpr std::uint32_t csmcNoKeyCount = 0xFFFFFFFF;

/// Names the user client that the process-wide connection is made with. While nothing is open; null for none.
void csmc_use_client(std::shared_ptr<SMCUserClient> client);

/// 0 when opened, -1 without an "AppleSMC" service, -2 when its user client could not be opened.
std::int32_t csmc_open();
void csmc_close();
/// The number of keys, csmcNoKeyCount on failure.
std::uint32_t csmc_key_count();
CSMCReadResult csmc_read_key(const char* key);
/// 1 when the key's four characters and NUL were written to `out`, 0 on failure.
std::int32_t csmc_key_at_index(std::uint32_t index, char out[5]);

} // namespace tarvo
