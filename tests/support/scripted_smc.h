#pragma once

#include "platform/smc_record.h"
#include "platform/smc_user_client.h"

#include <array>
#include <bit>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

/// A controller that holds the keys it is given, in their order, and records every call byte for byte.
class ScriptedSMC : public SMCUserClient {
public:
    using Bytes = std::array<unsigned char, sizeof(SMCRecord)>;

    struct Key {
        std::string name;
        std::string type;
        std::vector<unsigned char> bytes;
        std::uint8_t infoResult = 0;
        std::uint8_t readResult = 0;
    };
    struct Request {
        SMCConnection connection = 0;
        std::uint32_t selector = 0;
        std::size_t inputSize = 0;
        std::size_t outputSize = 0;
        Bytes input{};
        Bytes outputBefore{};
    };

    static std::uint32_t code(std::string_view name) { return smcCode(name); }
    static std::vector<unsigned char> bigEndian32(std::uint32_t value) {
        return {static_cast<unsigned char>(value >> 24), static_cast<unsigned char>(value >> 16),
                static_cast<unsigned char>(value >> 8), static_cast<unsigned char>(value)};
    }
    static std::vector<unsigned char> hostFloat(float value) {
        const auto raw = std::bit_cast<std::array<unsigned char, 4>>(value);
        return {raw.begin(), raw.end()};
    }

    /// Adds a key; "#KEY" is added by countKeys.
    void add(std::string name, std::string type, std::vector<unsigned char> bytes) {
        keys.push_back({std::move(name), std::move(type), std::move(bytes)});
    }
    void addFloat(std::string name, float value) { add(std::move(name), "flt ", hostFloat(value)); }
    /// Puts "#KEY" with the right count at the table's beginning.
    void countKeys() {
        keys.insert(keys.begin(), {"#KEY", "ui32", bigEndian32(static_cast<std::uint32_t>(keys.size()) + 1)});
    }
    Key& key(std::string_view name) { return *find(code(name)); }

    SMCService matchingService(std::string_view className) override {
        calls.push_back("find " + std::string(className));
        return service;
    }
    std::int32_t open(SMCService opened, std::uint32_t type, SMCConnection& connection) override {
        calls.push_back("open " + std::to_string(opened) + " type " + std::to_string(type));
        connection = nextConnection;
        return openResult;
    }
    void release(SMCService released) override { calls.push_back("release " + std::to_string(released)); }
    void close(SMCConnection connection) override { calls.push_back("close " + std::to_string(connection)); }

    std::int32_t callStructMethod(SMCConnection connection, std::uint32_t selector, const void* input,
                                  std::size_t inputSize, void* output, std::size_t& outputSize) override {
        Request request{connection, selector, inputSize, outputSize, {}, {}};
        std::memcpy(request.input.data(), input, request.input.size());
        std::memcpy(request.outputBefore.data(), output, request.outputBefore.size());
        requests.push_back(request);
        SMCRecord in{};
        SMCRecord out{};
        std::memcpy(&in, input, sizeof in);
        answer(in, out);
        if (alter) alter(in, out);
        std::memcpy(output, &out, sizeof out);
        return callResult ? callResult(in) : 0;
    }

    SMCService service = 7;
    SMCConnection nextConnection = 41;
    std::int32_t openResult = 0;
    std::vector<Key> keys;
    /// Changes the answer before it is handed out.
    std::function<void(const SMCRecord& input, SMCRecord& output)> alter;
    /// Result of the call itself.
    std::function<std::int32_t(const SMCRecord& input)> callResult;

    std::vector<std::string> calls;
    std::vector<Request> requests;

private:
    Key* find(std::uint32_t wanted) {
        for (auto& key : keys) {
            if (code(key.name) == wanted) return &key;
        }
        return nullptr;
    }
    void answer(const SMCRecord& in, SMCRecord& out) {
        if (in.data8 == static_cast<std::uint8_t>(SMCCommand::keyAtIndex)) {
            if (in.data32 < keys.size()) out.key = code(keys[in.data32].name);
            return;
        }
        auto* const found = find(in.key);
        if (!found) {
            out.result = 0x84;
        } else if (in.data8 == static_cast<std::uint8_t>(SMCCommand::readKeyInfo)) {
            out.keyInfo.dataSize = static_cast<std::uint32_t>(found->bytes.size());
            out.keyInfo.dataType = code(found->type);
            out.result = found->infoResult;
        } else {
            std::copy_n(found->bytes.begin(), std::min(found->bytes.size(), out.bytes.size()),
                        out.bytes.begin());
            out.result = found->readResult;
        }
    }
};

} // namespace tarvo
