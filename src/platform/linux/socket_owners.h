#pragma once

#include "platform/linux/root.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo::linux_platform {

/// One descriptor of one process that is a socket, of any kind.
struct SocketOwner {
    std::int32_t pid = 0;
    std::int32_t descriptor = 0;
    std::uint64_t inode = 0;
    bool operator==(const SocketOwner&) const = default;
};

/// Inode out of the text of a descriptor's link, "socket:[4711]"; absent for a descriptor of another kind.
std::optional<std::uint64_t> socketInode(std::string_view link);

/// Walks over the descriptors of all processes that may be looked into: an ordinary user's own. For one
/// thread.
class SocketOwners {
public:
    explicit SocketOwners(const Root& root);

    /// Replaces the list by the sockets of this moment, by pid, then descriptor.
    void list(std::vector<SocketOwner>& owners) const;

private:
    std::string path_;
};

} // namespace tarvo::linux_platform
