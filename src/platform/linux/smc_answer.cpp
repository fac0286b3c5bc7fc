#include "platform/linux/smc_answer.h"

#include <cstring>

namespace tarvo::linux_platform {
namespace {

enum Result : std::uint8_t { success = 0, failure = 0x80, keyNotFound = 0x84, sizeMismatch = 0x87 };

std::uint32_t sizeOf(const SMCKey& key) {
    return key.type == "ui8 " ? 1 : 4;
}

void encode(const SMCKey& key, double value, SMCRecord& answer) {
    if (key.type == "flt ") {
        const auto number = static_cast<float>(value);
        std::memcpy(answer.bytes.data(), &number, sizeof number);
        return;
    }
    const auto number = static_cast<std::uint32_t>(value);
    const auto size = sizeOf(key);
    for (std::uint32_t i = 0; i < size; ++i)
        answer.bytes[i] = static_cast<std::uint8_t>(number >> (8 * (size - 1 - i)));
}

void answerInfo(const SMCKey& key, SMCRecord& answer) {
    answer.keyInfo.dataSize = sizeOf(key);
    answer.keyInfo.dataType = smcCode(key.type);
}

void answerBytes(const SMCKey& key, const SMCRecord& request, SMCRecord& answer) {
    if (request.keyInfo.dataSize != sizeOf(key)) {
        answer.result = sizeMismatch;
        return;
    }
    const auto value = key.read();
    answer.result = value ? success : failure;
    if (value) encode(key, *value, answer);
}

} // namespace

SMCRecord answerSMCRequest(const SMCKeyTable& table, const SMCRecord& request) {
    SMCRecord answer{};
    const auto command = static_cast<SMCCommand>(request.data8);
    if (command == SMCCommand::keyAtIndex) {
        const auto* const key = table.at(request.data32);
        answer.key = key ? smcCode(key->key) : 0;
        answer.result = key ? success : keyNotFound;
        return answer;
    }
    const auto* const key = table.find(request.key);
    if (!key) {
        answer.result = keyNotFound;
    } else if (command == SMCCommand::readKeyInfo) {
        answerInfo(*key, answer);
    } else if (command == SMCCommand::readBytes) {
        answerBytes(*key, request, answer);
    } else {
        answer.result = failure;
    }
    return answer;
}

} // namespace tarvo::linux_platform
