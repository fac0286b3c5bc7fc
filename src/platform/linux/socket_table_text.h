#pragma once

#include "platform/linux/socket_record.h"

#include <bit>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// Appends the sockets of /proc/net/tcp, tcp6, udp or udp6 (proc_net_tcp in the kernel's networking
/// documents): a header, then one socket a line. Lines that do not parse are left out. `order` is the byte
/// order of the machine that wrote the file: addresses stand in it as words of 32 bits.
void parseSocketTableText(std::string_view text, SocketFamily family, SocketProtocol protocol,
                          std::endian order, std::vector<SocketRecord>& sockets);

} // namespace tarvo::linux_platform
