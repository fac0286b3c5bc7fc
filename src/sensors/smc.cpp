#include "sensors/smc.h"

#include "platform/smc_record.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace tarvo {
namespace {

/// The process-wide connection.
struct Door {
    std::shared_ptr<SMCUserClient> client;
    SMCConnection connection = 0;
};

Door& door() {
    static Door instance;
    return instance;
}

bool request(const SMCRecord& input, SMCRecord& output) {
    output = {};
    auto size = sizeof(SMCRecord);
    return door().client->callStructMethod(door().connection, smcRequestSelector, &input, sizeof(SMCRecord),
                                           &output, size) == 0;
}

SMCRecord inputFor(SMCCommand command) {
    SMCRecord input{};
    input.data8 = static_cast<std::uint8_t>(command);
    return input;
}

void unpack(std::uint32_t code, char (&out)[5]) {
    for (int i = 0; i < 4; ++i)
        out[i] = static_cast<char>(code >> (24 - 8 * i) & 0xFF);
    out[4] = '\0';
}

} // namespace

void csmc_use_client(std::shared_ptr<SMCUserClient> client) {
    door().client = std::move(client);
}

std::int32_t csmc_open() {
    const auto& client = door().client;
    const auto service = client ? client->matchingService("AppleSMC") : 0;
    if (service == 0) return -1;
    const auto failure = client->open(service, 0, door().connection);
    client->release(service);
    if (failure == 0) return 0;
    door().connection = 0;
    return -2;
}

void csmc_close() {
    if (door().connection == 0) return;
    door().client->close(door().connection);
    door().connection = 0;
}

std::uint32_t csmc_key_count() {
    const auto count = csmc_read_key("#KEY");
    if (count.success != 1 || std::strcmp(count.dataType, "ui32") != 0) return csmcNoKeyCount;
    std::uint32_t value = 0;
    for (int i = 0; i < 4; ++i)
        value = value << 8 | count.bytes[i];
    return value;
}

CSMCReadResult csmc_read_key(const char* key) {
    CSMCReadResult failed{};
    if (door().connection == 0 || std::strlen(key) != 4) return failed;

    SMCRecord output;
    auto input = inputFor(SMCCommand::readKeyInfo);
    input.key = smcCode(key);
    if (!request(input, output) || output.result != 0) return failed;
    const auto size = output.keyInfo.dataSize;
    const auto type = output.keyInfo.dataType;
    if (size < 1 || size > output.bytes.size()) return failed;

    input.keyInfo.dataSize = size;
    input.data8 = static_cast<std::uint8_t>(SMCCommand::readBytes);
    if (!request(input, output) || output.result != 0) return failed;

    CSMCReadResult result{};
    result.key = input.key;
    unpack(type, result.dataType);
    result.dataSize = size;
    std::copy_n(output.bytes.begin(), size, result.bytes);
    result.success = 1;
    return result;
}

std::int32_t csmc_key_at_index(std::uint32_t index, char out[5]) {
    if (door().connection == 0) return 0;
    SMCRecord output;
    auto input = inputFor(SMCCommand::keyAtIndex);
    input.data32 = index;
    // A key that came back is the only sign of success here; controllers set the result at will.
    if (!request(input, output) || output.key == 0) return 0;
    char name[5];
    unpack(output.key, name);
    std::copy_n(name, 5, out);
    return 1;
}

} // namespace tarvo
