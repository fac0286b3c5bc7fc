#include "platform/linux/socket_table_text.h"

#include "platform/linux/parse_number.h"
#include "platform/linux/text_cursor.h"

#include <optional>

namespace tarvo::linux_platform {

namespace {

constexpr std::size_t digitsPerWord = 8;
constexpr int fieldsBetweenStateAndInode = 5; // queues, timer, retransmissions, uid, timeout

void putWord(std::uint32_t word, std::endian order, std::uint8_t* bytes) {
    for (unsigned position = 0; position < 4; ++position) {
        const auto shift = 8 * (order == std::endian::little ? position : 3 - position);
        bytes[position] = static_cast<std::uint8_t>(word >> shift);
    }
}

/// "0100007F:1388"
std::optional<SocketAddress> parseAddress(std::string_view text, SocketFamily family, std::endian order) {
    const std::size_t words = family == SocketFamily::ipv4 ? 1 : 4;
    const auto portAt = words * digitsPerWord + 1;
    if (text.size() <= portAt || text[portAt - 1] != ':') return std::nullopt;
    SocketAddress address;
    for (std::size_t position = 0; position < words; ++position) {
        const auto word =
            parseHexadecimal<std::uint32_t>(text.substr(position * digitsPerWord, digitsPerWord));
        if (!word) return std::nullopt;
        putWord(*word, order, address.bytes.data() + 4 * position);
    }
    const auto port = parseHexadecimal<std::uint16_t>(text.substr(portAt));
    if (!port) return std::nullopt;
    address.port = *port;
    return address;
}

} // namespace

void parseSocketTableText(std::string_view text, SocketFamily family, SocketProtocol protocol,
                          std::endian order, std::vector<SocketRecord>& sockets) {
    TextCursor cursor(text);
    for (cursor.nextLine(); !cursor.atEnd(); cursor.nextLine()) {
        cursor.skipFields(1); // number of the line
        const auto local = parseAddress(cursor.field(), family, order);
        const auto remote = parseAddress(cursor.field(), family, order);
        const auto state = parseHexadecimal<std::uint8_t>(cursor.field());
        cursor.skipFields(fieldsBetweenStateAndInode);
        const auto inode = cursor.number();
        if (!local || !remote || !state || !inode) continue;
        sockets.push_back({family, protocol, *state, *local, *remote, *inode, 0, std::nullopt});
    }
}

} // namespace tarvo::linux_platform
