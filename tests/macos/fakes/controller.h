#pragma once

#include "macos/fakes/io_kit.h"

#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

namespace tarvo::fakes {

/// A system management controller behind its user client. It reads and writes the records by byte offset.
class Controller {
public:
    struct Key {
        std::string name;
        std::string type;
        std::vector<unsigned char> bytes;
        std::uint32_t reportedSize = 0; ///< 0: that of the bytes
    };

    std::int32_t answer(const StructCall& call, unsigned char* output) {
        if (call.selector != 2 || call.input.size() != 80 || call.outputSize != 80) return refused;
        switch (call.input[42]) {
        case 9:
            return describe(find(numberAt(call, 0)), output);
        case 5:
            return read(find(numberAt(call, 0)), numberAt(call, 28), output);
        case 8:
            return name(numberAt(call, 44), output);
        default:
            return refused;
        }
    }

    std::vector<Key> keys;
    std::uint8_t result = 0; ///< of every record

    static std::uint32_t numberAt(const StructCall& call, std::size_t offset) {
        std::uint32_t number = 0;
        std::memcpy(&number, call.input.data() + offset, sizeof number);
        return number;
    }
    static std::uint32_t code(const std::string& text) {
        std::uint32_t packed = 0;
        for (const char character : text)
            packed = packed << 8 | static_cast<unsigned char>(character);
        return packed;
    }

private:
    static constexpr std::int32_t refused = static_cast<std::int32_t>(0xE00002C2);
    static constexpr unsigned char keyNotFound = 132;

    const Key* find(std::uint32_t number) const {
        for (const auto& key : keys) {
            if (code(key.name) == number) return &key;
        }
        return nullptr;
    }

    static void put(unsigned char* output, std::size_t offset, std::uint32_t number) {
        std::memcpy(output + offset, &number, sizeof number);
    }

    std::int32_t describe(const Key* key, unsigned char* output) const {
        output[40] = key ? result : keyNotFound;
        if (!key) return 0;
        put(output, 28,
            key->reportedSize != 0 ? key->reportedSize : static_cast<std::uint32_t>(key->bytes.size()));
        put(output, 32, code(key->type));
        return 0;
    }

    std::int32_t read(const Key* key, std::uint32_t size, unsigned char* output) const {
        output[40] = key ? result : keyNotFound;
        if (!key || size > 32) return 0;
        std::memset(output + 48, 0xEE, 32); // more than the key has is not to be looked at
        std::memcpy(output + 48, key->bytes.data(), std::min<std::size_t>(key->bytes.size(), 32));
        return 0;
    }

    std::int32_t name(std::uint32_t index, unsigned char* output) const {
        output[40] = result;
        if (index < keys.size()) put(output, 0, code(keys[index].name));
        return 0;
    }
};

} // namespace tarvo::fakes
