#pragma once

#include "platform/linux/socket_record.h"

#include <cstdint>
#include <vector>

namespace tarvo::linux_platform {

/// Finds sockets by inode: a table of open addressing, since lists of a hundred thousand sockets are looked
/// through while a person waits. Sockets without an inode are left out; of several with one inode the first
/// is found.
class InodeIndex {
public:
    explicit InodeIndex(const std::vector<SocketRecord>& sockets);

    /// Null when no socket has the inode. Valid as long as the list.
    const SocketRecord* find(std::uint64_t inode) const;

private:
    std::size_t slotOf(std::uint64_t inode) const;

    const std::vector<SocketRecord>& sockets_;
    std::vector<std::uint32_t> slots_; ///< 0: free; else position in the list plus 1; a power of two of them
    unsigned shift_ = 63;
};

} // namespace tarvo::linux_platform
