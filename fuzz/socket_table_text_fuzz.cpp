#include "platform/linux/socket_endpoint.h"
#include "platform/linux/socket_owners.h"
#include "platform/linux/socket_table_text.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo::linux_platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    for (const auto family : {SocketFamily::ipv4, SocketFamily::ipv6}) {
        for (const auto order : {std::endian::little, std::endian::big}) {
            std::vector<SocketRecord> sockets;
            parseSocketTableText(text, family, SocketProtocol::tcp, order, sockets);
            for (const auto& socket : sockets) {
                const auto endpoint = endpointText(family, socket.local);
                if (endpoint.find(':') == std::string::npos ||
                    endpoint.find_first_of(" \n") != std::string::npos)
                    std::abort();
            }
        }
    }
    socketInode(text);
    return 0;
}
