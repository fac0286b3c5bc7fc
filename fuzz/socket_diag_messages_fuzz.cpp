#include "platform/linux/socket_diag_messages.h"
#include "platform/linux/socket_endpoint.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

using namespace tarvo::linux_platform;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::span bytes(reinterpret_cast<const std::byte*>(data), size);
    for (const bool onlyWithTraffic : {false, true}) {
        std::vector<SocketRecord> sockets;
        const SocketDiagQuery query{SocketFamily::ipv4, SocketProtocol::tcp, onlyWithTraffic, 1};
        parseSocketDiagMessages(bytes, query, sockets);
        for (const auto& socket : sockets) {
            if (socket.traffic && !onlyWithTraffic) std::abort();
            if (endpointText(socket.family, socket.remote).empty()) std::abort();
        }
    }
    return 0;
}
